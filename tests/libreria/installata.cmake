# Installs the library into a folder of its own; a project outside finds it there and writes with it.
file(REMOVE_RECURSE ${LAVORO})

function(fai)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

fai(${CMAKE_COMMAND} --install ${COSTRUITA} --prefix ${LAVORO}/qui)
fai(${CMAKE_COMMAND} -S ${PROGETTO} -B ${LAVORO}/fuori -G ${GENERATORE}
    -D CMAKE_MAKE_PROGRAM=${PROGRAMMA} -D CMAKE_CXX_COMPILER=${COMPILATORE}
    -D CMAKE_PREFIX_PATH=${LAVORO}/qui)
fai(${CMAKE_COMMAND} --build ${LAVORO}/fuori)
foreach(nome saluto saluto_shared saluto_static)
    fai(${LAVORO}/fuori/${nome} ${LAVORO}/${nome}.pdf)
    file(SIZE ${LAVORO}/${nome}.pdf byte)
    if(byte LESS 2000)
        message(FATAL_ERROR "${nome}.pdf has ${byte} bytes")
    endif()
endforeach()
