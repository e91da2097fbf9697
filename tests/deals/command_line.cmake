# Words of the command line and answers are UTF-8 on every system, with the line ends that they have.
#   cmake -D PROGRAM="[EMULATOR;]zandolin_deals" -P command_line.cmake
set(name "Café ♥ één.pbn")
execute_process(COMMAND ${PROGRAM} list ${name} RESULT_VARIABLE status ERROR_VARIABLE told ENCODING UTF-8)
if(NOT status EQUAL 2 OR NOT told STREQUAL "error: no such file (Café {2665} één.pbn)\n")
    message(FATAL_ERROR "status ${status}, told: ${told}")
endif()
