# Runs one scenario file with the scenario runner placed in a folder of its
# own, beside a database or help file made for the case, as a user's folder
# would hold them:
#   cmake -DRUNNER=... -DBIN=... -DDIR=... -DCASE=zero|text|longhelp -DSCENARIO=... -DQT=0|1 -P beside.cmake
# zero: OrvantaData.db of no bytes; text: a text file under that name;
# longhelp: the real database and a ReadMe.txt of about 1 MB.
file(REMOVE_RECURSE "${DIR}")
file(MAKE_DIRECTORY "${DIR}")
# The runner finds its files beside the path it was started by, so a hard
# link does, and saves copying the executable.
file(CREATE_LINK "${RUNNER}" "${DIR}/orvanta-scenario" RESULT linked)
if(NOT linked EQUAL 0)
  file(COPY_FILE "${RUNNER}" "${DIR}/orvanta-scenario")
endif()

if(CASE STREQUAL "zero")
  file(WRITE "${DIR}/OrvantaData.db" "")
elseif(CASE STREQUAL "text")
  file(WRITE "${DIR}/OrvantaData.db" "Symbol,AtomicWeight\nH,1.008\n")
elseif(CASE STREQUAL "longhelp")
  file(COPY_FILE "${BIN}/OrvantaData.db" "${DIR}/OrvantaData.db")
  string(REPEAT "Help text line for a long topic. Help text line for a long topic.\n" 16 block)
  string(REPEAT "${block}" 950 text)
  file(WRITE "${DIR}/ReadMe.txt" "${text}")
else()
  message(FATAL_ERROR "unknown case ${CASE}")
endif()

set(args "${SCENARIO}")
if(QT)
  set(args --qt "${SCENARIO}")
endif()
execute_process(COMMAND "${DIR}/orvanta-scenario" ${args} WORKING_DIRECTORY "${DIR}" RESULT_VARIABLE result)
file(REMOVE_RECURSE "${DIR}")
if(NOT result EQUAL 0)
  message(FATAL_ERROR "orvanta-scenario failed (${result})")
endif()
