# Flags of everything in the tree, and of the libraries in particular.

add_library(hux_build_flags INTERFACE)
target_compile_options(hux_build_flags INTERFACE -Wall -Wextra -Wundef $<$<BOOL:${HUX_WERROR}>:-Werror>)

# What is compiled with the sanitizers: the libraries, and what looks into them. All programs are linked with them.
add_library(hux_sanitizers INTERFACE)
if(HUX_SANITIZE)
  target_compile_options(hux_sanitizers INTERFACE -O1 -g1 -fsanitize=${HUX_SANITIZE} -fno-sanitize-recover=all
                                                  -fno-omit-frame-pointer)
  # What goes through a null pointer is stopped by the address sanitizer, where it does.
  if(HUX_SANITIZE MATCHES "address,undefined")
    target_compile_options(hux_sanitizers INTERFACE -fno-sanitize=null)
  endif()
  # Where a function has so many accesses, GCC compiles a call for each in little more than half the time. What lies
  # behind the checks may be slow, so registers are given by priority and nobody asks what pointers may point to: this
  # takes two fifths off the rest. Whether each address of a walk stays where addresses do not wrap would be a quarter of
  # what is left then: what is read and written there is looked at anyway, and Clang's fuzzer asks for the address as well.
  if(HUX_SANITIZE MATCHES address AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(hux_sanitizers INTERFACE "SHELL:--param asan-instrumentation-with-call-threshold=300"
                                                    -fira-algorithm=priority -fno-tree-pta -fno-sanitize=pointer-overflow)
  endif()
  target_link_options(hux_build_flags INTERFACE -fsanitize=${HUX_SANITIZE})
endif()

# What divides work among threads. Without it each team has one thread.
add_library(hux_threads INTERFACE)
if(HUX_THREADS)
  find_package(OpenMP REQUIRED COMPONENTS CXX)
  target_link_libraries(hux_threads INTERFACE OpenMP::OpenMP_CXX)
endif()
if(HUX_FUZZ AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  target_compile_options(hux_build_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Results must not depend on optimisation: no contraction to fused operations and no member of -ffast-math that changes a
# value. errno and floating-point traps are not part of any result, so loops need not preserve them. Rows go top to
# bottom, also where they overlap, so no loop over rows may change places with the loop along them. Vectors wider than the
# machine's only pass between inlined functions, so how they would be passed otherwise does not matter. Many loops over
# vectors fit 32 bytes of code; one of those that lay across two lines of 64 took twice its time on a Zen processor.
set(HUX_LIBRARY_FLAGS -ffp-contract=off -fno-math-errno -fno-trapping-math -Wno-psabi
                      $<$<CXX_COMPILER_ID:GNU>:-fno-loop-unroll-and-jam>
                      $<$<CXX_COMPILER_ID:GNU,Clang>:-falign-loops=32>)

# What nearly all sources of the images' library begin with, most of it the system's, is read once. What GCC writes of it
# differs from run to run, so the cache of objects goes by what was read; it sees the compiler and its flags itself.
# (Clang reads the same in half the time, and builds without it, so that no source lacks an include of its own.)
function(hux_precompile objects)
  set(headers <algorithm> <array> <bit> <cmath> <cstdint> <cstring> <limits> <type_traits> <utility>)
  set(registers ${PROJECT_SOURCE_DIR}/src/lanes/registers.h)
  target_precompile_headers(${objects} PRIVATE ${headers} ${registers})
  target_compile_options(${objects} PRIVATE -fpch-preprocess)
  if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(settings CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_PCH_EXTSUM=1)
    set_target_properties(${objects} PROPERTIES
      CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND};-E;env;${settings};${CMAKE_CXX_COMPILER_LAUNCHER}")
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${registers})
    file(READ ${registers} read)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${objects}.dir/cmake_pch.hxx.gch.sum "${headers}\n${read}")
  endif()
endfunction()

# The objects of both libraries at one architecture level, or at the compiler's own. Sets <name>_core and <name>_images.
function(hux_add_objects name arch)
  foreach(part core images)
    string(TOUPPER ${part} list)
    add_library(${name}_${part} OBJECT ${HUX_${list}_SOURCES})
    target_include_directories(${name}_${part} PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
    target_compile_options(${name}_${part} PRIVATE ${HUX_OPTIMISATION} ${HUX_LIBRARY_FLAGS}
                                                   $<$<BOOL:${arch}>:-march=${arch}>)
    target_compile_definitions(${name}_${part} PRIVATE $<$<PLATFORM_ID:Windows>:HUX_BUILDS_${list}>)
    target_link_libraries(${name}_${part} PRIVATE hux_build_flags hux_sanitizers hux_threads)
    set_target_properties(${name}_${part} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
                                                     VISIBILITY_INLINES_HIDDEN ON)
  endforeach()
  if(HUX_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    hux_precompile(${name}_images)
  endif()
endfunction()

configure_file(cmake/exports.map.in exports.map @ONLY)

# The two shared libraries of one architecture level, as targets <name>huxcore and <name>huxi.
function(hux_add_libraries name objects)
  add_library(${name}huxcore SHARED $<TARGET_OBJECTS:${objects}_core>)
  target_link_libraries(${name}huxcore PRIVATE $<BUILD_INTERFACE:hux_build_flags> $<BUILD_INTERFACE:hux_threads>)
  add_library(${name}huxi SHARED $<TARGET_OBJECTS:${objects}_images>)
  target_link_libraries(${name}huxi PRIVATE $<BUILD_INTERFACE:hux_build_flags> $<BUILD_INTERFACE:hux_threads>
                        PUBLIC ${name}huxcore)
  # A program that uses the one alone finds the other beside it, also in a tree that has been moved.
  set_target_properties(${name}huxi PROPERTIES INSTALL_RPATH $ORIGIN)
  foreach(library huxcore huxi)
    set_target_properties(${name}${library} PROPERTIES OUTPUT_NAME ${library} VERSION ${PROJECT_VERSION}
                                                       SOVERSION ${PROJECT_VERSION_MAJOR} EXPORT_NAME ${library})
    target_include_directories(${name}${library} INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                                           $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    # A template's inline helpers may come out as weak symbols of the standard library; only our names leave the library.
    # They have a version, as the soname does: where two libraries of different majors meet in a process, each call goes
    # to the one that it was linked with. (On Windows a library exports what is marked and no more, and has no versions.)
    if(NOT WIN32)
      target_link_options(${name}${library} PRIVATE LINKER:--version-script=${PROJECT_BINARY_DIR}/exports.map)
      # Clang leaves it to the program to bring along a sanitizer's own functions.
      if(NOT HUX_SANITIZE)
        target_link_options(${name}${library} PRIVATE LINKER:--no-undefined)
      endif()
      set_target_properties(${name}${library} PROPERTIES LINK_DEPENDS ${PROJECT_BINARY_DIR}/exports.map)
    endif()
  endforeach()
endfunction()
