# How every target of this project is compiled, in one place.

# Position-independent code everywhere: the same objects go into the plug-in module and into tests.
add_compile_options(-fPIC -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast
                    -Woverloaded-virtual)
if(CORVANA_WERROR)
    add_compile_options(-Werror)
endif()
# Texts are QString or explicit; a silent conversion from Latin-1 bytes would break Japanese.
add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS)
# A symbol that a library forgets to link would otherwise surface only when it is loaded.
add_link_options(-Wl,--no-undefined -Wl,--as-needed)

# libFuzzer sees which branches an input takes where the code counts them. Its counters and those of the
# coverage are one table a program, so that the platform is linked into the program as well.
set(CORVANA_PLATFORM_KIND SHARED)
if(CORVANA_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
    set(CORVANA_PLATFORM_KIND STATIC)
endif()

if(CORVANA_SANITIZE)
    add_compile_options(-fsanitize=${CORVANA_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CORVANA_SANITIZE})
endif()

# What is shipped reads what servers and strangers' documents send it: an overrun ends the program
# instead of being used. Without optimisation the checked C library functions do not exist.
if(NOT CORVANA_SANITIZE AND CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
        add_compile_options(-D_FORTIFY_SOURCE=2)
    endif()
    add_compile_options(-D_GLIBCXX_ASSERTIONS -fstack-protector-strong -fstack-clash-protection)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
        add_compile_options(-fcf-protection)
    endif()
endif()

# One precompiled header, built once and shared by all targets.
add_library(corvana_pch OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled.cpp)
set_target_properties(corvana_pch PROPERTIES AUTOMOC OFF)
target_link_libraries(corvana_pch PRIVATE Qt6::Widgets Cups::Cups)
target_include_directories(corvana_pch PRIVATE ${CMAKE_SOURCE_DIR})
# Named within the tree: an absolute path in the header would make it another one in each clone.
target_precompile_headers(corvana_pch PRIVATE <cmake/precompiled.h>)

# corvana_target(NAME): include paths and the shared precompiled header for a target.
function(corvana_target name)
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC Qt6::Widgets Cups::Cups)
    target_precompile_headers(${name} REUSE_FROM corvana_pch)
endfunction()

# What tests are compiled with: most of their time would go into optimising code that runs once, and
# into descriptions of the types of Qt that no debugger is ever asked for. The product that they link
# is compiled as it is shipped.
function(corvana_test_target name)
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::Network Qt6::Test Cups::Cups test_paths)
    target_compile_options(${name} PRIVATE ${CORVANA_TEST_COMPILE_OPTIONS})
    target_link_options(${name} PRIVATE ${CORVANA_TEST_LINK_OPTIONS})
    target_precompile_headers(${name} REUSE_FROM corvana_test_pch)
endfunction()

# corvana_shipped(NAME): what users get. Every symbol is bound when it is loaded, after which its
# tables are read-only: a program that opens documents of strangers had better have none to overwrite.
function(corvana_shipped name)
    target_link_options(${name} PRIVATE -Wl,-z,relro -Wl,-z,now)
endfunction()
