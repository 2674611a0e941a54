# What `cmake --install` puts where, and how other projects find it there.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The headers that programs include; what these include comes along.
set(header_roots
  quillgrid/base/Decimal.h
  quillgrid/base/Version.h
  quillgrid/calendar/QGCalendar.h
  quillgrid/calendar/WorkCalendar.h
  quillgrid/cells/LanguageTexts.h
  quillgrid/euro/QGEuro.h
  quillgrid/grid/Keys.h
  quillgrid/grid/Quillgrid.h
  quillgrid/locale/Coercion.h
  quillgrid/locale/Format.h
  quillgrid/pads/QGCalcpad.h
  quillgrid/pads/QGInputList.h
  quillgrid/resources/Glyphs.h)
if(QUILLGRID_BUILD_QT)
  list(APPEND header_roots
    quillgrid/hosts/qt/CalculatorWidget.h
    quillgrid/hosts/qt/CalendarWidget.h
    quillgrid/hosts/qt/JsonPropertyBag.h
    quillgrid/hosts/qt/ModelBinding.h
    quillgrid/hosts/qt/ObjectBinding.h
    quillgrid/hosts/qt/QtImageSource.h
    quillgrid/hosts/qt/QtLocale.h
    quillgrid/hosts/qt/QtPicture.h
    quillgrid/hosts/qt/QuillgridWidget.h
    quillgrid/hosts/qt/ReadyDropDowns.h
    quillgrid/hosts/qt/SettingsPropertyBag.h
    quillgrid/hosts/qt/VariantConversion.h
    quillgrid/hosts/qtsql/RecordBinding.h
    quillgrid/hosts/qtsql/SqlRecord.h)
endif()

set(cmake_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Quillgrid)
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# quillgrid_install(Qt6 PACKAGE qt6 TARGETS quillgrid_qt=Qt6 ...): the targets, under the names that they have
# for others, of one part of the library. A part is what a Debian package holds and a CMake component loads.
function(quillgrid_install part)
  cmake_parse_arguments(ARG "" "PACKAGE" "TARGETS" ${ARGN})
  foreach(entry IN LISTS ARG_TARGETS)
    string(REPLACE "=" ";" entry ${entry})
    list(GET entry 0 target)
    list(GET entry 1 name)
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    install(TARGETS ${target} EXPORT Quillgrid${part}
            LIBRARY COMPONENT ${ARG_PACKAGE} NAMELINK_COMPONENT dev
            ARCHIVE COMPONENT dev
            INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  endforeach()
  install(EXPORT Quillgrid${part} FILE Quillgrid${part}Targets.cmake NAMESPACE Quillgrid::
          DESTINATION ${cmake_folder} COMPONENT dev)
endfunction()

# quillgrid_pkgconfig(core "the control" LIBRARIES grid ... REQUIRES ...) makes quillgrid-core.pc.
function(quillgrid_pkgconfig name description)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;REQUIRES" ${ARGN})
  list(TRANSFORM ARG_LIBRARIES REPLACE "^(.+)$" "-lquillgrid-\\1")
  list(JOIN ARG_LIBRARIES " " libraries)
  list(JOIN ARG_REQUIRES ", " requires)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/quillgrid.pc.in quillgrid-${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/quillgrid-${name}.pc DESTINATION ${pkgconfig_folder} COMPONENT dev)
endfunction()

# A .pc file that is found where it is installed finds the rest from there, wherever the tree was moved to.
file(RELATIVE_PATH PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

set(EXTRA_CFLAGS "")
if(BUILD_SHARED_LIBS)
  set(EXTRA_CFLAGS " -DQUILLGRID_SHARED")
  quillgrid_install(Core PACKAGE core TARGETS quillgrid_core=Core)
  quillgrid_pkgconfig(core "An input form in one control, without a window system" LIBRARIES core)
  quillgrid_pkgconfig(calendar "Public holidays and work days" REQUIRES quillgrid-core)
else()
  quillgrid_install(Core PACKAGE core TARGETS
    quillgrid_core=Core quillgrid_base=Base quillgrid_locale=Locale quillgrid_platform=Platform
    quillgrid_resources=Resources quillgrid_cells=Cells quillgrid_euro=Euro quillgrid_calendar=Calendar
    quillgrid_pads=Pads quillgrid_grid=Grid)
  set(beneath cells resources locale base)
  quillgrid_pkgconfig(core "An input form in one control, without a window system"
                      LIBRARIES grid pads calendar euro ${beneath})
  quillgrid_pkgconfig(calendar "Public holidays and work days" LIBRARIES calendar ${beneath})
endif()

if(QUILLGRID_BUILD_QT)
  quillgrid_install(Qt6 PACKAGE qt6 TARGETS quillgrid_qt=Qt6)
  quillgrid_install(Qt6Sql PACKAGE qt6sql TARGETS quillgrid_qtsql=Qt6Sql)
  quillgrid_pkgconfig(qt6 "An input form in one Qt widget" LIBRARIES qt6 REQUIRES quillgrid-core Qt6Widgets
                      Qt6PrintSupport)
  quillgrid_pkgconfig(qt6sql "Records of Qt's SQL module for quillgrid-qt6" LIBRARIES qt6sql
                      REQUIRES quillgrid-qt6 Qt6Sql)
endif()

# Where Qt's form designer looks; relative to the prefix, as everything that is installed.
if(QUILLGRID_BUILD_DESIGNER)
  set(QUILLGRID_DESIGNER_FOLDER ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer CACHE STRING
      "Folder of the plugin for Qt's form designer, below the prefix")
  install(TARGETS quillgrid_designer LIBRARY DESTINATION ${QUILLGRID_DESIGNER_FOLDER} COMPONENT designer)
endif()

# Which headers the published ones reach is found out while installing: no list of them can be forgotten.
install(CODE "
  set(SOURCE_FOLDERS \"${PROJECT_SOURCE_DIR};${QUILLGRID_GENERATED}\")
  set(HEADERS \"${header_roots}\")
  set(DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_INCLUDEDIR}\")
  include(\"${PROJECT_SOURCE_DIR}/cmake/InstallHeaders.cmake\")
" COMPONENT dev)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QuillgridConfig.cmake.in QuillgridConfig.cmake
                              INSTALL_DESTINATION ${cmake_folder})
# Before 1.0 a new minor version may break what used the one before.
write_basic_package_version_file(QuillgridConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/QuillgridConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/QuillgridConfigVersion.cmake
        DESTINATION ${cmake_folder} COMPONENT dev)
