# Installs the build in BUILD to a fresh prefix, and builds and runs programs against it: in C and C++ through CMake and
# through pkg-config, and by PYTHON, where that is given, with the module.
cmake_path(GET CMAKE_SCRIPT_MODE_FILE PARENT_PATH source)
set(examples ${source}/../../examples)
set(work ${BUILD}/consumer)
file(REMOVE_RECURSE ${work})
set(run COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)

# Runs the program that the README shows in three languages.
function(greets)
  execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE says ${run})
  if(NOT says STREQUAL "centre: 250 180 30\n")
    message(FATAL_ERROR "${ARGV} says ${says}")
  endif()
endfunction()

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${work}/prefix ${run} OUTPUT_QUIET)
execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${work}/build -D CMAKE_PREFIX_PATH=${work}/prefix
                        -D EXAMPLES=${examples} -D CMAKE_C_COMPILER=${CC} -D CMAKE_CXX_COMPILER=${CXX} ${run} OUTPUT_QUIET)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work}/build ${run} OUTPUT_QUIET)
execute_process(COMMAND ${work}/build/consumer ${run})
greets(${work}/build/hello)

file(GLOB_RECURSE pc ${work}/prefix/*/huxi.pc)
cmake_path(GET pc PARENT_PATH pkgconfig)
set(ENV{PKG_CONFIG_PATH} ${pkgconfig})
execute_process(COMMAND pkg-config --cflags --libs huxi OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE ${run})
separate_arguments(flags UNIX_COMMAND "${flags}")
cmake_path(GET pkgconfig PARENT_PATH lib)
execute_process(COMMAND ${CC} -std=c99 ${source}/consumer.c -o ${work}/with-pkg-config ${flags} -Wl,-rpath,${lib} ${run})
execute_process(COMMAND ${work}/with-pkg-config ${run})
execute_process(COMMAND ${CXX} -std=c++20 ${examples}/hello.cpp -o ${work}/hello-with-pkg-config ${flags}
                        -Wl,-rpath,${lib} ${run})
greets(${work}/hello-with-pkg-config)

# The module finds the library of the tree that it stands in, also where that tree has been moved.
if(PYTHON)
  file(RENAME ${work}/prefix ${work}/moved)
  file(GLOB_RECURSE module ${work}/moved/*/_hux.abi3.so)
  cmake_path(GET module PARENT_PATH package)
  cmake_path(GET package PARENT_PATH packages)
  set(ENV{PYTHONPATH} ${packages})
  set(ENV{PYTHONDONTWRITEBYTECODE} 1)
  greets(${PYTHON} ${examples}/hello.py)
  execute_process(COMMAND ${PYTHON} -c "import hux, pathlib
assert hux.library_path.startswith('${work}/moved/') and hux.library_version == hux.__version__
here = pathlib.Path(hux.__file__).parent
assert (here / 'py.typed').exists() and (here / '__init__.pyi').exists()" ${run})
endif()
