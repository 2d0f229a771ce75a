# Runs a habdrive script on a fresh demo installation and compares what it
# prints, and its exit status, with what is expected.
#   cmake -DHABDRIVE=... -DMKDEMO=... -DSCRIPT=... -DWORK=... -P rundrive.cmake
# SCRIPT is a .hd file, expected output in the .out file beside it; or a .md
# file, whose first ```habdrive block is the script and first ```output block
# what it prints, with exit status 0. A .hd file may hold several runs on the
# same installation, separated by lines "#---"; after each run's output comes
# a line "exit N" with its status.
# A line "# units: N" makes the demo with N units (mkdemo's default when absent).
# A line "# args: ..." in the script gives habdrive's options; @PDF@ stands for
# a fresh folder for --pdf, and is written in place of that folder's path in
# the output. Every PDF a REPORT line names must exist and be a PDF, and so
# must each file a line "# writes: FILE" names (relative to the run's folder).
# A line "# pdftext: NAME.pdf" (a file of the --pdf folder) adds to the output,
# after every run, "PDF NAME.pdf pages N" and the text of that PDF as
# pdftotext lays it out, blanks squeezed, empty lines left out: what a printed
# paper says is checked as the rest of the output is. Today's date reads
# @HOJE@ there, and a time right after it @HORA@.
# Files a run writes are compared with what the support console makes from
# the same database (paths relative to the run's folder):
#   "# snapshot: FILE COPY"  before the run, copies FILE to COPY;
#   "# habtool: ARGS"        after the run, runs habtool ARGS; adds "HABTOOL exit N";
#   "# same: A B"            then adds "SAME A B" when the two files are equal
#                            byte for byte, "DIFFERENT A B" when not.
# A "# writes:" file whose name ends in .pdf must be a PDF; any other must exist.
# @DATA@ in a script stands for today's date as yyyy-mm-dd (the names of
# files the program dates), and today's date so written reads @DATA@ in the
# output, a time after it as hh.mm.ss @HORA@.
cmake_minimum_required(VERSION 3.25)

function(fenced text tag out)
  string(REGEX MATCH "```${tag}\n(.*)" rest "${text}")
  string(FIND "${CMAKE_MATCH_1}" "```" end)
  string(SUBSTRING "${CMAKE_MATCH_1}" 0 ${end} body)
  set(${out} "${body}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
if(SCRIPT MATCHES "\\.md$")
  file(READ "${SCRIPT}" doc)
  fenced("${doc}" "habdrive" script_text)
  fenced("${doc}" "output" expected)
  string(APPEND expected "exit 0\n")
else()
  string(REGEX REPLACE "\\.hd$" ".out" expected_file "${SCRIPT}")
  file(READ "${expected_file}" expected)
  file(READ "${SCRIPT}" script_text)
endif()

set(units "")
if(script_text MATCHES "(^|\n)# units: *([0-9]+)")
  set(units "${CMAKE_MATCH_2}")
endif()
execute_process(COMMAND "${MKDEMO}" "${WORK}/demo" ${units} RESULT_VARIABLE rc OUTPUT_QUIET ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "mkdemo failed (${rc}): ${err}")
endif()

set(actual "")
set(errors "")
set(rest "${script_text}")
set(n 0)
while(NOT rest STREQUAL "")
  math(EXPR n "${n} + 1")
  string(FIND "${rest}" "\n#---\n" cut)
  if(cut EQUAL -1)
    set(run "${rest}")
    set(rest "")
  else()
    string(SUBSTRING "${rest}" 0 ${cut} run)
    math(EXPR cut "${cut} + 6")
    string(SUBSTRING "${rest}" ${cut} -1 rest)
  endif()
  set(script_file "${WORK}/run${n}.hd")
  string(TIMESTAMP hoje_iso "%Y-%m-%d")
  string(REPLACE "@DATA@" "${hoje_iso}" run "${run}")
  file(WRITE "${script_file}" "${run}\n")
  set(args "")
  if(run MATCHES "(^|\n)# args:([^\n]*)")
    string(STRIP "${CMAKE_MATCH_2}" arg_text)
    string(REPLACE "@PDF@" "${WORK}/pdf" arg_text "${arg_text}")
    separate_arguments(args UNIX_COMMAND "${arg_text}")
  endif()
  string(REGEX MATCHALL "(^|\n)# snapshot: [^\n]*" snapshots "${run}")
  foreach(line ${snapshots})
    string(REGEX REPLACE "^\n?# snapshot: *" "" pair "${line}")
    separate_arguments(pair UNIX_COMMAND "${pair}")
    list(GET pair 0 from)
    list(GET pair 1 to)
    file(COPY_FILE "${WORK}/${from}" "${WORK}/${to}")
  endforeach()
  execute_process(COMMAND "${HABDRIVE}" "${WORK}/demo" "${script_file}" ${args}
                  WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  string(APPEND actual "${out}exit ${rc}\n")
  string(APPEND errors "${err}")
  string(REGEX MATCHALL "(^|\n)# (habtool|same): [^\n]*" afterwards "${run}")
  foreach(line ${afterwards})
    if(line MATCHES "# habtool: *(.*)")
      separate_arguments(targs UNIX_COMMAND "${CMAKE_MATCH_1}")
      execute_process(COMMAND "${HABTOOL}" ${targs} WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE trc
                      OUTPUT_QUIET ERROR_VARIABLE terr)
      string(APPEND actual "HABTOOL exit ${trc}\n")
      string(APPEND errors "${terr}")
    elseif(line MATCHES "# same: *([^ ]+) +([^ ]+)")
      execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${WORK}/${CMAKE_MATCH_1}" "${WORK}/${CMAKE_MATCH_2}"
                      RESULT_VARIABLE crc OUTPUT_QUIET ERROR_QUIET)
      if(crc EQUAL 0)
        string(APPEND actual "SAME ${CMAKE_MATCH_1} ${CMAKE_MATCH_2}\n")
      else()
        string(APPEND actual "DIFFERENT ${CMAKE_MATCH_1} ${CMAKE_MATCH_2}\n")
      endif()
    endif()
  endforeach()
endwhile()
string(REPLACE "${WORK}/pdf" "@PDF@" actual "${actual}")
string(TIMESTAMP hoje_iso "%Y-%m-%d")
string(REPLACE "${hoje_iso}" "@DATA@" actual "${actual}")
string(REGEX REPLACE "@DATA@ [0-9][0-9]\\.[0-9][0-9]\\.[0-9][0-9]" "@DATA@ @HORA@" actual "${actual}")

string(REGEX MATCHALL "REPORT [^\n]*\\|@PDF@/[^\n|]*\\.pdf" files "${actual}")
string(REGEX MATCHALL "(^|\n)# writes: [^\n]*" writes "${script_text}")
string(REPLACE "@DATA@" "${hoje_iso}" writes "${writes}")
list(APPEND files ${writes})
foreach(file ${files})
  string(REGEX REPLACE ".*\\|@PDF@/" "${WORK}/pdf/" pdf "${file}")
  string(REGEX REPLACE "^\n?# writes: *" "${WORK}/" pdf "${pdf}")
  if(NOT EXISTS "${pdf}")
    message(FATAL_ERROR "${pdf} was not written")
  endif()
  file(READ "${pdf}" head LIMIT 4)
  if(pdf MATCHES "\\.pdf$" AND NOT head MATCHES "^%PDF")
    message(FATAL_ERROR "${pdf} is not a PDF")
  endif()
endforeach()

string(REGEX MATCHALL "(^|\n)# pdftext: [^\n]*" texts "${script_text}")
foreach(line ${texts})
  string(REGEX REPLACE "^\n?# pdftext: *" "" name "${line}")
  string(STRIP "${name}" name)
  set(pdf "${WORK}/pdf/${name}")
  if(NOT EXISTS "${pdf}")
    message(FATAL_ERROR "${pdf} was not written")
  endif()
  execute_process(COMMAND pdfinfo "${pdf}" OUTPUT_VARIABLE info RESULT_VARIABLE rc)
  string(REGEX MATCH "Pages: *([0-9]+)" _ "${info}")
  string(APPEND actual "PDF ${name} pages ${CMAKE_MATCH_1}\n")
  execute_process(COMMAND pdftotext -layout "${pdf}" - OUTPUT_VARIABLE text RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "pdftotext failed on ${pdf}")
  endif()
  string(ASCII 12 formfeed)  # pages end with a form feed
  string(REPLACE "${formfeed}" "\n" text "${text}")
  string(REGEX REPLACE "[ \t]+" " " text "${text}")
  string(REGEX REPLACE " *\n *" "\n" text "${text}")
  string(REGEX REPLACE "\n+" "\n" text "${text}")
  string(REGEX REPLACE "^\n" "" text "${text}")
  string(TIMESTAMP today "%d/%m/%Y")
  string(REPLACE "${today}" "@HOJE@" text "${text}")
  string(REGEX REPLACE "@HOJE@ [0-9][0-9]:[0-9][0-9](:[0-9][0-9])?" "@HOJE@ @HORA@" text "${text}")
  string(APPEND actual "${text}")
endforeach()

if(NOT actual STREQUAL expected)
  file(WRITE "${WORK}/actual.out" "${actual}")
  message(FATAL_ERROR "output differs from what is expected.\n--- expected\n${expected}--- printed (${WORK}/actual.out)\n${actual}--- stderr\n${errors}")
endif()
