# Makes all that a static library defines weak, and leaves alone what it asks of others: a weak
# question would go unanswered where nobody else asks it.
#   cmake -D NM=... -D OBJCOPY=... -D LIBRARY=... -P weaken.cmake
set(list ${LIBRARY}.symbols)
execute_process(COMMAND ${NM} --defined-only --extern-only --format=just-symbols ${LIBRARY}
    OUTPUT_FILE ${list} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${OBJCOPY} --enable-deterministic-archives --weaken-symbols=${list} ${LIBRARY}
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE ${list})
