# Installs the build in BUILD to a fresh prefix and builds and runs the consumer against it in two ways.
cmake_path(GET CMAKE_SCRIPT_MODE_FILE PARENT_PATH source)
set(work ${BUILD}/consumer)
file(REMOVE_RECURSE ${work})
set(run COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${work}/prefix ${run} OUTPUT_QUIET)
execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${work}/build -D CMAKE_PREFIX_PATH=${work}/prefix
                        -D CMAKE_C_COMPILER=${CC} ${run} OUTPUT_QUIET)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work}/build ${run} OUTPUT_QUIET)
execute_process(COMMAND ${work}/build/consumer ${run})

file(GLOB_RECURSE pc ${work}/prefix/*/huxi.pc)
cmake_path(GET pc PARENT_PATH pkgconfig)
set(ENV{PKG_CONFIG_PATH} ${pkgconfig})
execute_process(COMMAND pkg-config --cflags --libs huxi OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE ${run})
separate_arguments(flags UNIX_COMMAND "${flags}")
cmake_path(GET pkgconfig PARENT_PATH lib)
execute_process(COMMAND ${CC} -std=c99 ${source}/consumer.c -o ${work}/with-pkg-config ${flags} -Wl,-rpath,${lib} ${run})
execute_process(COMMAND ${work}/with-pkg-config ${run})
