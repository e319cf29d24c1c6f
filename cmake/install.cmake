# Installation of the library, its public headers, the dbgdata tool, the
# CMake package and the pkg-config file, in the GNU layout:
#
#   <prefix>/lib/libdbgdata.so.<version>, .so.<major>, .so
#   <prefix>/include/dbgdata/*.h, <prefix>/include/dbgdata/Common/*
#   <prefix>/bin/dbgdata
#   <prefix>/lib/cmake/DbgData/  DbgDataConfig.cmake, ...ConfigVersion.cmake,
#                                DbgDataTargets*.cmake
#   <prefix>/lib/pkgconfig/dbgdata.pc
#
# Consumers put <prefix>/include on their include path and write
# #include <dbgdata/registerdata.h>. The public headers include each other
# by paths relative to their own folder ("dataclass.h", "Common/DDAssert.h"),
# which resolve the same way in the source tree and in the installed one.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The oldest Xerces-C the library is built against (the top-level
# find_package); the package and the .pc file ask consumers for it too.
set(DBGDATA_XERCESC_MIN_VERSION 3.2)

target_include_directories(dbgdata PUBLIC
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_compile_features(dbgdata PUBLIC cxx_std_17)
add_library(DbgData::dbgdata ALIAS dbgdata)

install(TARGETS dbgdata EXPORT DbgDataTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          COMPONENT Runtime NAMELINK_COMPONENT Development
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
if(TARGET dbgdata-tool)
  # The tool finds the library next to it in an installed tree of any prefix.
  file(RELATIVE_PATH _dbgdata_bin_to_lib
       ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(dbgdata-tool PROPERTIES
    INSTALL_RPATH "$ORIGIN/${_dbgdata_bin_to_lib}")
  install(TARGETS dbgdata-tool
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
endif()

# Every public header, including those added later: the folders are copied
# rather than listed.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dbgdata COMPONENT Development
  FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Common/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dbgdata/Common COMPONENT Development
  FILES_MATCHING PATTERN "*.h" PATTERN "*.inl")

# The CMake package.
set(DBGDATA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/DbgData)
install(EXPORT DbgDataTargets NAMESPACE DbgData::
  DESTINATION ${DBGDATA_CMAKE_DIR} COMPONENT Development)
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/DbgDataConfig.cmake.in
  ${PROJECT_BINARY_DIR}/DbgDataConfig.cmake
  INSTALL_DESTINATION ${DBGDATA_CMAKE_DIR})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/DbgDataConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/DbgDataConfig.cmake
              ${PROJECT_BINARY_DIR}/DbgDataConfigVersion.cmake
  DESTINATION ${DBGDATA_CMAKE_DIR} COMPONENT Development)

# The pkg-config file names absolute directories. The prefix is the one of
# the install step (`cmake --install --prefix` may choose another than the
# configured one), so the file is written when installing.
foreach(_dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${_dir}}")
    set(DBGDATA_PC_${_dir} "${CMAKE_INSTALL_${_dir}}")
  else()
    set(DBGDATA_PC_${_dir} "\${prefix}/${CMAKE_INSTALL_${_dir}}")
  endif()
endforeach()
install(CODE "
  set(DBGDATA_PC_PREFIX \"\${CMAKE_INSTALL_PREFIX}\")
  set(DBGDATA_PC_LIBDIR [==[${DBGDATA_PC_LIBDIR}]==])
  set(DBGDATA_PC_INCLUDEDIR [==[${DBGDATA_PC_INCLUDEDIR}]==])
  set(DBGDATA_XERCESC_MIN_VERSION \"${DBGDATA_XERCESC_MIN_VERSION}\")
  set(PROJECT_VERSION \"${PROJECT_VERSION}\")
  configure_file(\"${PROJECT_SOURCE_DIR}/cmake/dbgdata.pc.in\"
                 \"${PROJECT_BINARY_DIR}/dbgdata.pc\" @ONLY)
  " COMPONENT Development)
install(FILES ${PROJECT_BINARY_DIR}/dbgdata.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
