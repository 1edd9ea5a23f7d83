# Where things are installed. The program finds what belongs to it relative to itself, and the panels
# find their help books relative to their bundle, so that an installation works at any prefix and can
# be moved; these relations are therefore fixed, and the same as in the build folder.
include(GNUInstallDirs)

foreach(place IN ITEMS BINDIR=bin DATADIR=share)
    string(REGEX MATCH "^([A-Z]+)=(.*)$" _ ${place})
    if(NOT CMAKE_INSTALL_${CMAKE_MATCH_1} STREQUAL CMAKE_MATCH_2)
        message(FATAL_ERROR "CMAKE_INSTALL_${CMAKE_MATCH_1} has to be \"${CMAKE_MATCH_2}\": "
                            "corvana-print looks for its files in ../lib and ../share.")
    endif()
endforeach()

# Not in CMAKE_INSTALL_LIBDIR, which is for libraries of several architectures beside each other: as
# those of /usr/lib/cups, these are parts of one program. Nobody else links them.
set(CORVANA_INSTALL_PRIVATE_DIR lib/corvana-print)
set(CORVANA_INSTALL_DATA_DIR ${CMAKE_INSTALL_DATADIR}/corvana-print)
set(CORVANA_INSTALL_BUNDLE_DIR ${CORVANA_INSTALL_PRIVATE_DIR}/plugins/QXCLQuality13PDE.bundle)
# CUPS looks for PPDs in share/ppd below /usr, /usr/local and /opt.
set(CORVANA_INSTALL_PPD_DIR ${CMAKE_INSTALL_DATADIR}/ppd/corvana)

# A bundle that others can write to is refused by the program, so a generous umask must not make one.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# corvana_install_files(BASE DESTINATION FILE...): each FILE, a path relative to BASE, below DESTINATION
# under the same path.
function(corvana_install_files base destination)
    foreach(file IN LISTS ARGN)
        get_filename_component(folder ${file} DIRECTORY)
        install(FILES ${base}/${file} DESTINATION ${destination}/${folder})
    endforeach()
endfunction()
