# Run by CTest (see CMakeLists.txt) with cmake -P. Installs the built project
# into WORK_DIR/prefix and checks:
#   - the library file, its SONAME link and development link, and the
#     versioned SONAME that readelf shows;
#   - that the tree holds only the expected files: exactly the public
#     headers, nothing of the tests or benchmarks;
#   - that the installed tool runs from its own prefix;
#   - that every installed header's includes resolve with only
#     <prefix>/include on the include path;
#   - examples/consumer configured, built and run against the prefix through
#     find_package(DbgData) and CMAKE_PREFIX_PATH;
#   - the same program compiled with the flags of
#     `pkg-config --cflags --libs dbgdata`, and run.
cmake_minimum_required(VERSION 3.25)

foreach(var SOURCE_DIR BUILD_DIR WORK_DIR CXX VERSION SOVERSION LIBDIR BINDIR
            INCLUDEDIR)
  if("${${var}}" STREQUAL "")
    message(FATAL_ERROR "${var} is not set")
  endif()
endforeach()
if(NOT PKG_CONFIG)
  message(FATAL_ERROR "pkg-config was not found (scripts/deps.sh installs it)")
endif()
if(NOT READELF)
  message(FATAL_ERROR "readelf was not found")
endif()

set(prefix ${WORK_DIR}/prefix)
set(errors 0)
macro(fail text)
  message(SEND_ERROR "${text}")
  math(EXPR errors "${errors} + 1")
endmacro()

# Runs a command; a non-zero exit ends the test with its output.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status
                  OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 0)
    string(REPLACE ";" " " line "${ARGN}")
    message(FATAL_ERROR "failed (${status}): ${line}\n${out}${err}")
  endif()
  set(run_output "${out}" PARENT_SCOPE)
endfunction()

# A sanitizer build's library needs the sanitizer runtime in every program.
set(sanitize_flags)
if(SANITIZE)
  set(sanitize_flags -fsanitize=address,undefined -fno-omit-frame-pointer)
endif()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
    --config ${BUILD_TYPE})

# --- The library: file, links, SONAME.
set(lib ${prefix}/${LIBDIR}/libdbgdata.so)
if(NOT EXISTS ${lib}.${VERSION} OR IS_SYMLINK ${lib}.${VERSION})
  fail("${lib}.${VERSION} is not a file")
endif()
foreach(link_target IN ITEMS "${lib}.${SOVERSION}>libdbgdata.so.${VERSION}"
                             "${lib}>libdbgdata.so.${SOVERSION}")
  string(REPLACE ">" ";" pair "${link_target}")
  list(GET pair 0 link)
  list(GET pair 1 expected)
  if(NOT IS_SYMLINK ${link})
    fail("${link} is not a symbolic link")
  else()
    file(READ_SYMLINK ${link} points_to)
    if(NOT points_to STREQUAL expected)
      fail("${link} points to ${points_to}, not ${expected}")
    endif()
  endif()
endforeach()
run(${READELF} -d ${lib}.${VERSION})
if(NOT run_output MATCHES "\\(SONAME\\)[^\n]*\\[libdbgdata\\.so\\.${SOVERSION}\\]")
  fail("readelf -d shows no SONAME libdbgdata.so.${SOVERSION}:\n${run_output}")
endif()
if(run_output MATCHES "\\(NEEDED\\)[^\n]*(gtest|gmock|benchmark)")
  fail("the library needs a test or benchmark library:\n${run_output}")
endif()

# --- The installed tree holds these files and no others.
string(REPLACE "." "\\." version_re "${VERSION}")
set(allowed
    "^${BINDIR}/dbgdata$"
    "^${LIBDIR}/libdbgdata\\.so(\\.${SOVERSION}|\\.${version_re})?$"
    "^${LIBDIR}/cmake/DbgData/DbgData(Config|ConfigVersion|Targets|Targets-[a-z]+)\\.cmake$"
    "^${LIBDIR}/pkgconfig/dbgdata\\.pc$"
    "^${INCLUDEDIR}/dbgdata/")
file(GLOB_RECURSE installed LIST_DIRECTORIES false RELATIVE ${prefix}
     ${prefix}/*)
set(installed_headers)
foreach(file ${installed})
  set(known FALSE)
  foreach(pattern ${allowed})
    if(file MATCHES "${pattern}")
      set(known TRUE)
    endif()
  endforeach()
  if(NOT known)
    fail("unexpected installed file ${file}")
  endif()
  if(file MATCHES "^${INCLUDEDIR}/dbgdata/(.*)$")
    list(APPEND installed_headers ${CMAKE_MATCH_1})
  endif()
endforeach()
foreach(required ${BINDIR}/dbgdata ${LIBDIR}/cmake/DbgData/DbgDataConfig.cmake
                 ${LIBDIR}/cmake/DbgData/DbgDataConfigVersion.cmake
                 ${LIBDIR}/cmake/DbgData/DbgDataTargets.cmake
                 ${LIBDIR}/pkgconfig/dbgdata.pc)
  if(NOT EXISTS ${prefix}/${required})
    fail("${required} is not installed")
  endif()
endforeach()
# Exactly the public headers: include/*.h and Common/*, in the same layout.
file(GLOB public_headers RELATIVE ${SOURCE_DIR}/include ${SOURCE_DIR}/include/*.h)
file(GLOB common_headers RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/Common/*.h
     ${SOURCE_DIR}/Common/*.inl)
set(expected_headers ${public_headers} ${common_headers})
list(SORT expected_headers)
list(SORT installed_headers)
if(NOT installed_headers STREQUAL expected_headers)
  fail("installed headers differ from the public ones:\n"
       "  installed: ${installed_headers}\n  public: ${expected_headers}")
endif()

# --- The installed tool finds the installed library on its own.
run(${prefix}/${BINDIR}/dbgdata key /Root)
if(NOT run_output MATCHES "place: 0 \"Root\"")
  fail("the installed tool printed:\n${run_output}")
endif()

# --- pkg-config flags, used by the header and consumer checks below.
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run(${PKG_CONFIG} --cflags --libs dbgdata)
string(STRIP "${run_output}" pc_output)
separate_arguments(pc_flags UNIX_COMMAND "${pc_output}")
if(NOT "-I${prefix}/${INCLUDEDIR}" IN_LIST pc_flags OR
   NOT "-ldbgdata" IN_LIST pc_flags)
  fail("pkg-config --cflags --libs dbgdata printed: ${pc_output}")
endif()

# --- Every installed header with nothing but the package's flags: their
# includes of each other resolve inside <prefix>/include/dbgdata.
set(all_headers_source ${WORK_DIR}/all_headers.cpp)
file(WRITE ${all_headers_source} "")
foreach(header ${installed_headers})
  if(header MATCHES "\\.h$")
    file(APPEND ${all_headers_source} "#include <dbgdata/${header}>\n")
  endif()
endforeach()
run(${CXX} -std=c++17 -fsyntax-only ${all_headers_source} ${pc_flags})

# --- The consumer through the CMake package.
set(consumer_build ${WORK_DIR}/consumer)
list(JOIN sanitize_flags " " sanitize_flags_text)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/consumer -B ${consumer_build}
    -DCMAKE_BUILD_TYPE=${BUILD_TYPE} -DCMAKE_CXX_COMPILER=${CXX}
    "-DCMAKE_CXX_FLAGS=${sanitize_flags_text}"
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
file(STRINGS ${consumer_build}/CMakeCache.txt package_dir
     REGEX "^DbgData_DIR:")
if(NOT package_dir STREQUAL "DbgData_DIR:PATH=${prefix}/${LIBDIR}/cmake/DbgData")
  fail("the consumer found the package elsewhere: ${package_dir}")
endif()
run(${CMAKE_COMMAND} --build ${consumer_build})
run(${consumer_build}/dbgdata_consumer)

# --- The consumer through pkg-config; the flags carry no run path.
set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR})
run(${CXX} -std=c++17 ${sanitize_flags} ${SOURCE_DIR}/examples/consumer/main.cpp
    ${pc_flags} -o ${WORK_DIR}/consumer_pkgconfig)
run(${WORK_DIR}/consumer_pkgconfig)

if(errors GREATER 0)
  message(FATAL_ERROR "${errors} install check(s) failed")
endif()
message(STATUS "install and consumer checks passed (${prefix})")
