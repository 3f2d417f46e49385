# Plays SCRIPT with PLAYER, a command, in a game folder FOLDER made anew, as an installation leaves it.
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${PLAYER} --new-folder ${FOLDER} ${SCRIPT} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "exit status ${result}")
endif()
