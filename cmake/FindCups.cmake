# Finds libcups with its PPD functions and defines the imported target Cups::Cups.
# CMake's own module asks for the library only; this one also wants <cups/ppd.h> and the version.
find_path(Cups_INCLUDE_DIR cups/ppd.h)
find_library(Cups_LIBRARY cups)
if(Cups_INCLUDE_DIR AND EXISTS "${Cups_INCLUDE_DIR}/cups/cups.h")
    file(STRINGS "${Cups_INCLUDE_DIR}/cups/cups.h" _cups_lines REGEX "#.*define CUPS_VERSION_M")
    string(REGEX REPLACE ".*CUPS_VERSION_MAJOR[ \t]+([0-9]+).*" "\\1" _cups_major "${_cups_lines}")
    string(REGEX REPLACE ".*CUPS_VERSION_MINOR[ \t]+([0-9]+).*" "\\1" _cups_minor "${_cups_lines}")
    set(Cups_VERSION "${_cups_major}.${_cups_minor}")
endif()
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Cups REQUIRED_VARS Cups_LIBRARY Cups_INCLUDE_DIR
                                  VERSION_VAR Cups_VERSION)
if(Cups_FOUND AND NOT TARGET Cups::Cups)
    add_library(Cups::Cups UNKNOWN IMPORTED)
    set_target_properties(Cups::Cups PROPERTIES IMPORTED_LOCATION "${Cups_LIBRARY}"
                          INTERFACE_INCLUDE_DIRECTORIES "${Cups_INCLUDE_DIR}")
endif()
