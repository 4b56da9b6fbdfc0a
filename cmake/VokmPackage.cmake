# Debian packages, made by cpack; scripts/package configures for them, makes them and tries them.
set(VOKM_PACKAGER "the vokm developers <vokm@packages.invalid>" CACHE STRING "Name and address in packages")
set(release 1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vokm)
set(CPACK_PACKAGE_CONTACT ${VOKM_PACKAGER})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(about "Plain C functions add, transform, multiply, factorise and invert arrays of
vectors and matrices of 3 to 6 rows, find their eigenvalues and eigenvectors,
in float and double, in three memory layouts, with results fixed to the bit.")

# vokm_package(COMPONENT NAME SECTION TITLE WHAT): a package of what was installed for the component, and the papers that each
# package has to carry.
function(vokm_package component name section title what)
    string(TOUPPER ${component} upper)
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "linear algebra on arrays of small matrices${title}\n${about}\n\n${what}" PARENT_SCOPE)

    set(papers ${PROJECT_BINARY_DIR}/papers)
    set(to ${CMAKE_INSTALL_DATAROOTDIR}/doc/${name})
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${to} RENAME copyright COMPONENT ${component} EXCLUDE_FROM_ALL)
    install(FILES ${papers}/changelog.gz ${papers}/changelog.Debian.gz DESTINATION ${to} COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${PROJECT_BINARY_DIR}/papers/changelog.Debian "vokm (${PROJECT_VERSION}-${release}) unstable; urgency=medium

  * As in changelog.gz.

 -- ${VOKM_PACKAGER}  ${now}
")
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_BINARY_DIR}/papers/changelog COPYONLY)
foreach(paper changelog changelog.Debian)
    execute_process(COMMAND gzip -9nc ${PROJECT_BINARY_DIR}/papers/${paper} OUTPUT_FILE ${PROJECT_BINARY_DIR}/papers/${paper}.gz)
endforeach()

vokm_package(runtime libvokm6.1 libs "" "This package has the shared libraries.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/platform)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY =)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
file(WRITE ${PROJECT_BINARY_DIR}/papers/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/papers/triggers)

vokm_package(development libvokm-dev libdevel " (development)"
    "This package has the headers, and what linkers, CMake and pkg-config need.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS libvokm-doc)

if(VOKM_BUILD_DOCS)
    vokm_package(documentation libvokm-doc doc " (documentation)" "This package has the documentation, and programs to copy from.")
    set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
    set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_MULTIARCH foreign)
endif()
include(CPack)
