# Plays SCRIPT with PLAYER in a game folder FOLDER made anew, as an installation leaves it.
file(REMOVE_RECURSE ${FOLDER})
foreach(counter Ultimo UltPart UltCeI UltIyC UltCas UltIng UltCoI)
    file(WRITE ${FOLDER}/${counter}.dat " 0 \r\n")
endforeach()
execute_process(COMMAND ${PLAYER} --folder ${FOLDER} ${SCRIPT} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "exit status ${result}")
endif()
