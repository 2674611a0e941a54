# Debian packages (tools/make_packages): the shared libraries, Qt's apart from the core, and what developers need.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillgrid)
set(CPACK_PACKAGE_CONTACT "The Quillgrid developers <quillgrid@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
# As dpkg wants folders: not as permissive as the umask of whoever packs.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_COMPONENTS_ALL core dev)
if(QUILLGRID_BUILD_QT)
  set(CPACK_COMPONENTS_ALL core qt6 qt6sql dev)
endif()

if(QUILLGRID_BUILD_DESIGNER)
  list(APPEND CPACK_COMPONENTS_ALL designer)
endif()

# Libraries that cannot stand in for each other are installed side by side: their name carries the version.
set(developer_needs "")
foreach(part IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${part} upper)
  set(package libquillgrid-${part}-${QUILLGRID_ABI})
  if(part STREQUAL dev)
    set(package libquillgrid-dev)
  elseif(part STREQUAL designer)
    set(package quillgrid-designer)
  else()
    list(APPEND developer_needs "${package} (= ${PROJECT_VERSION})")
  endif()
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}
          RENAME copyright COMPONENT ${part})
endforeach()
# dpkg finds the rest of what they need in the libraries, but knows no package yet for each other.
set(CPACK_DEBIAN_QT6_PACKAGE_DEPENDS "libquillgrid-core-${QUILLGRID_ABI} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_QT6SQL_PACKAGE_DEPENDS "libquillgrid-qt6-${QUILLGRID_ABI} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "libquillgrid-qt6-${QUILLGRID_ABI} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
if(QUILLGRID_BUILD_QT)
  list(APPEND developer_needs "qt6-base-dev (>= ${QUILLGRID_QT_VERSION})")
endif()
list(JOIN developer_needs ", " CPACK_DEBIAN_DEV_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_COMPONENT_CORE_DESCRIPTION "The control without a window system, with its calendar of work days")
set(CPACK_COMPONENT_QT6_DESCRIPTION "The control as a Qt widget")
set(CPACK_COMPONENT_QT6SQL_DESCRIPTION "Records of Qt's SQL module for the control")
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION "The control in Qt's form designer")
set(CPACK_COMPONENT_DEV_DESCRIPTION "Headers, CMake and pkg-config files of Quillgrid")

# Where dpkg-shlibdeps finds one of these libraries when another needs it.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/quillgrid
                                                ${PROJECT_BINARY_DIR}/quillgrid/hosts/qt)
include(CPack)
