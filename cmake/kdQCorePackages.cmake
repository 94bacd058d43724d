# Packages of an installed tree: `cpack -G TGZ` or, for Windows, `cpack -G ZIP` in any build; `cpack -G DEB` in the
# build of the preset "debian", with one package for each component. scripts/package does it all.

set(CPACK_PACKAGE_NAME kdqcore)
set(CPACK_PACKAGE_VENDOR "kdQCore developers")
set(CPACK_PACKAGE_CONTACT "kdQCore developers <kdqcore@packages.invalid>" CACHE STRING "Maintainer of the packages")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each Debian package has its own
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_THREADS 0)

option(KDQCORE_DEBIAN "Install what every Debian package must bring along" OFF)
set(CPACK_COMPONENTS_ALL Runtime Translations Devel Applications Documentation)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
get_target_property(library_dir kdQCore BINARY_DIR)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${library_dir})
set(debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(library_package libkdqcore${PROJECT_VERSION_MAJOR})

if(KDQCORE_DEBIAN)
    string(TIMESTAMP DEBIAN_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in ${CMAKE_BINARY_DIR}/debian/changelog.Debian @ONLY)
    execute_process(COMMAND gzip -9nf ${CMAKE_BINARY_DIR}/debian/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
endif()

# debian_package(<component> <name> SECTION <s> SUMMARY <one line> TEXT <lines> [DEPENDS <packages>] [RECOMMENDS <packages>]
#                [ALL])
function(debian_package component name)
    cmake_parse_arguments(DEB "ALL" "SECTION;SUMMARY;TEXT;DEPENDS;RECOMMENDS" "" ${ARGN})
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${DEB_SECTION} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${DEB_DEPENDS}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_RECOMMENDS "${DEB_RECOMMENDS}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_DESCRIPTION "${DEB_SUMMARY}\n${DEB_TEXT}" PARENT_SCOPE)
    if(DEB_ALL)
        set(CPACK_DEBIAN_${key}_PACKAGE_ARCHITECTURE all PARENT_SCOPE)
    endif()
    if(KDQCORE_DEBIAN)
        install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/copyright ${CMAKE_BINARY_DIR}/debian/changelog.Debian.gz
                DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
    endif()
endfunction()

set(about "\
kdQCore is the shared core of applications that simulate manufacturing
processes with a finite-element solver: tables, formulas, input decks,
heat treatments, locks, messages between processes, undo and redo.
")
debian_package(Runtime ${library_package} SECTION libs
    SUMMARY "core of applications that simulate manufacturing processes"
    TEXT "${about}This package holds the shared library."
    DEPENDS "libkdqcore-data (>= ${debian_version})")
debian_package(Translations libkdqcore-data SECTION localization ALL
    SUMMARY "translations of the kdQCore library and programs"
    TEXT "${about}This package holds the German texts.")
debian_package(Devel libkdqcore-dev SECTION libdevel
    SUMMARY "development files of the kdQCore library"
    TEXT "${about}This package holds the headers and the package files for CMake and pkg-config."
    DEPENDS "${library_package} (= ${debian_version}), qtbase5-dev (>= 5.15)")
debian_package(Applications kdqcore-tools SECTION science
    SUMMARY "command shell and viewers of kdQCore"
    TEXT "${about}This package holds the command shell kdqsh, which works on all of these
from a prompt or a script, and the programs that draw and show them."
    DEPENDS "${library_package} (= ${debian_version})"
    RECOMMENDS "qttranslations5-l10n") # the dialogues of Qt itself in German
debian_package(Documentation kdqcore-doc SECTION doc ALL
    SUMMARY "documents and examples of the kdQCore library"
    TEXT "${about}This package holds the tutorial, the how-to pages and the examples.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_APPLICATIONS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

include(CPack)
