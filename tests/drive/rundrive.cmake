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
# @HOJE@ there, a time right after it @HORA@, and today written out
# ("5 de Abril de 2008") @HOJE_EXTENSO@.
# Files a run writes are compared with what the support console makes from
# the same database (paths relative to the run's folder):
#   "# snapshot: FILE COPY"  before the run, copies FILE to COPY;
#   "# remove: FILE"         before the run, removes FILE (a text taken away
#                            between two sessions);
#   "# habtool: ARGS"        after the run, runs habtool ARGS; adds "HABTOOL exit N";
#   "# same: A B"            then adds "SAME A B" when the two files are equal
#                            byte for byte, "DIFFERENT A B" when not.
#   "# barcodes: NAME.pdf DB" after the run, each page of that PDF (of the --pdf
#                            folder) rendered at 300 dpi (pdftoppm) and its bar
#                            code read by zbarimg; adds per page "BARCODE NAME.pdf
#                            page N recibo CODE: D dígitos, linha digitável na
#                            página" when the digits are the bar code of receipt
#                            CODE in DB and the page's text holds that receipt's
#                            typed line; anything else is said as it is.
#   "# figures: NNN-NAME.pdf FILE STATEMENT[ | STATEMENT...]"
#                            then runs "habtool sql FILE" on the statements and
#                            compares the figures of the PDF with its rows, line
#                            by line: adds "FIGURES NAME N lines as habtool", or
#                            "FIGURES NAME DIFFERENT" and the first lines apart.
# A "# writes:" file whose name ends in .pdf must be a PDF; any other must exist.
# @DATA@ in a script stands for today's date as yyyy-mm-dd (the names of
# files the program dates), and today's date so written reads @DATA@ in the
# output, a time after it as hh.mm.ss @HORA@.
cmake_minimum_required(VERSION 3.25)

# The figures of a printed paper: each line that begins with an account code
# (01. or 01.001) or a date and holds an amount gives its codes, dates and
# amounts, the amounts in habtool's plain form (28.112,08 -> 28112.08,
# 350,00 -> 350). Names, descriptions, headings and totals stay out.
function(pdf_figures pdf out)
  if(NOT EXISTS "${pdf}")
    set(${out} "(not written)" PARENT_SCOPE)
    return()
  endif()
  execute_process(COMMAND pdftotext -layout "${pdf}" - OUTPUT_VARIABLE text RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "pdftotext failed on ${pdf}")
  endif()
  string(REPLACE ";" "," text "${text}")
  string(REGEX REPLACE "\n" ";" lines "${text}")
  set(result "")
  foreach(line IN LISTS lines)
    string(STRIP "${line}" line)
    if(NOT line MATCHES "^([0-9][0-9]\\.|[0-9][0-9]/[0-9][0-9]/[0-9][0-9][0-9][0-9])")
      continue()
    endif()
    string(REGEX MATCHALL "-?[0-9]+(\\.[0-9][0-9][0-9])*,[0-9][0-9]|[0-9][0-9]/[0-9][0-9]/[0-9][0-9][0-9][0-9]|[0-9][0-9]\\.([0-9][0-9][0-9])?"
           tokens "${line}")
    set(fields "")
    set(amount FALSE)
    foreach(t IN LISTS tokens)
      if(t MATCHES ",")
        string(REPLACE "." "" t "${t}")
        string(REPLACE "," "." t "${t}")
        string(REGEX REPLACE "(\\.[0-9]*[1-9])0+$" "\\1" t "${t}")
        string(REGEX REPLACE "\\.0+$" "" t "${t}")
        if(t STREQUAL "-0")
          set(t "0")
        endif()
        set(amount TRUE)
      endif()
      string(APPEND fields " ${t}")
    endforeach()
    if(amount)
      string(STRIP "${fields}" fields)
      list(APPEND result "${fields}")
    endif()
  endforeach()
  set(${out} "${result}" PARENT_SCOPE)
endfunction()

# The same from the rows habtool sql prints: fields that are codes, dates or
# numbers, rows holding a number.
function(habtool_figures file statements out)
  string(REGEX REPLACE " *[|] *" "\n" statements "${statements}")
  file(WRITE "${WORK}/figures.sql" "${statements}\n")
  execute_process(COMMAND "${HABTOOL}" sql "${WORK}/${file}" INPUT_FILE "${WORK}/figures.sql"
                  OUTPUT_VARIABLE text RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "habtool sql ${file} failed: ${text}")
  endif()
  string(REPLACE ";" "," text "${text}")
  string(REGEX REPLACE "\n" ";" lines "${text}")
  set(result "")
  foreach(line IN LISTS lines)
    string(REPLACE "\t" ";" cells "${line}")
    set(fields "")
    set(amount FALSE)
    foreach(c IN LISTS cells)
      if(c MATCHES "^[0-9][0-9]\\.([0-9][0-9][0-9])?$" OR c MATCHES "^[0-9][0-9]/[0-9][0-9]/[0-9][0-9][0-9][0-9]$")
        string(APPEND fields " ${c}")
      elseif(c MATCHES "^-?[0-9]+(\\.[0-9]+)?$")
        string(APPEND fields " ${c}")
        set(amount TRUE)
      endif()
    endforeach()
    if(amount)
      string(STRIP "${fields}" fields)
      list(APPEND result "${fields}")
    endif()
  endforeach()
  set(${out} "${result}" PARENT_SCOPE)
endfunction()

function(fenced text tag out)
  string(REGEX MATCH "```${tag}\n(.*)" rest "${text}")
  string(FIND "${CMAKE_MATCH_1}" "```" end)
  string(SUBSTRING "${CMAKE_MATCH_1}" 0 ${end} body)
  set(${out} "${body}" PARENT_SCOPE)
endfunction()

# The slips of a PDF against the receipts of a database (see "# barcodes:").
function(read_barcodes name db)
  set(pdf "${WORK}/pdf/${name}")
  execute_process(COMMAND pdfinfo "${pdf}" OUTPUT_VARIABLE info RESULT_VARIABLE rc ERROR_QUIET)
  if(NOT rc EQUAL 0)
    set(barcodes_out "BARCODE ${name}: não escrito\n" PARENT_SCOPE)
    return()
  endif()
  string(REGEX MATCH "Pages: *([0-9]+)" _ "${info}")
  set(out "")
  foreach(page RANGE 1 ${CMAKE_MATCH_1})
    execute_process(COMMAND pdftoppm -r 300 -gray -png -f ${page} -l ${page} -singlefile "${pdf}" "${WORK}/barcode")
    execute_process(COMMAND zbarimg --raw -q "${WORK}/barcode.png" OUTPUT_VARIABLE digits
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND pdftotext -f ${page} -l ${page} "${pdf}" - OUTPUT_VARIABLE text)
    file(WRITE "${WORK}/barcode.sql" "SELECT codigo,lindigbco FROM Recibos WHERE barrabco = '${digits}'\n")
    execute_process(COMMAND "${HABTOOL}" sql "${WORK}/${db}" INPUT_FILE "${WORK}/barcode.sql" OUTPUT_VARIABLE rows)
    set(found "")
    if(digits MATCHES "^[0-9]+$" AND rows MATCHES "\n([0-9]+)\t([^\n]+)")
      set(found "${CMAKE_MATCH_1}")
      set(typed "${CMAKE_MATCH_2}")
    endif()
    string(LENGTH "${digits}" length)
    if(found STREQUAL "")
      string(APPEND out "BARCODE ${name} page ${page}: lido \"${digits}\", de nenhum recibo\n")
    else()
      string(FIND "${text}" "${typed}" at)
      if(at EQUAL -1)
        string(APPEND out "BARCODE ${name} page ${page} recibo ${found}: ${length} dígitos, linha digitável ausente\n")
      else()
        string(APPEND out "BARCODE ${name} page ${page} recibo ${found}: ${length} dígitos, linha digitável na página\n")
      endif()
    endif()
  endforeach()
  set(barcodes_out "${out}" PARENT_SCOPE)
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
  string(REGEX MATCHALL "(^|\n)# remove: [^\n]*" removals "${run}")
  foreach(line ${removals})
    string(REGEX REPLACE "^\n?# remove: *" "" gone "${line}")
    file(REMOVE "${WORK}/${gone}")
  endforeach()
  execute_process(COMMAND "${HABDRIVE}" "${WORK}/demo" "${script_file}" ${args}
                  WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  string(APPEND actual "${out}exit ${rc}\n")
  string(APPEND errors "${err}")
  string(REGEX MATCHALL "(^|\n)# (habtool|same|figures|barcodes): [^\n]*" afterwards "${run}")
  foreach(line ${afterwards})
    if(line MATCHES "# habtool: *(.*)")
      separate_arguments(targs UNIX_COMMAND "${CMAKE_MATCH_1}")
      execute_process(COMMAND "${HABTOOL}" ${targs} WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE trc
                      OUTPUT_QUIET ERROR_VARIABLE terr)
      string(APPEND actual "HABTOOL exit ${trc}\n")
      string(APPEND errors "${terr}")
    elseif(line MATCHES "# figures: *([^ ]+) +([^ ]+) +(.*)")
      set(name "${CMAKE_MATCH_1}")
      pdf_figures("${WORK}/pdf/${name}" printed)
      habtool_figures("${CMAKE_MATCH_2}" "${CMAKE_MATCH_3}" console)
      list(LENGTH printed n)
      if(printed STREQUAL console)
        string(APPEND actual "FIGURES ${name} ${n} lines as habtool\n")
      else()
        list(LENGTH console m)
        string(APPEND actual "FIGURES ${name} DIFFERENT (${n} lines printed, ${m} from habtool)\n")
        foreach(i RANGE 0 ${n})
          set(a "")
          set(b "")
          if(i LESS n)
            list(GET printed ${i} a)
          endif()
          if(i LESS m)
            list(GET console ${i} b)
          endif()
          if(NOT a STREQUAL b)
            string(APPEND actual "  line ${i}: printed [${a}] habtool [${b}]\n")
            break()
          endif()
        endforeach()
      endif()
    elseif(line MATCHES "# same: *([^ ]+) +([^ ]+)")
      execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${WORK}/${CMAKE_MATCH_1}" "${WORK}/${CMAKE_MATCH_2}"
                      RESULT_VARIABLE crc OUTPUT_QUIET ERROR_QUIET)
      if(crc EQUAL 0)
        string(APPEND actual "SAME ${CMAKE_MATCH_1} ${CMAKE_MATCH_2}\n")
      else()
        string(APPEND actual "DIFFERENT ${CMAKE_MATCH_1} ${CMAKE_MATCH_2}\n")
      endif()
    elseif(line MATCHES "# barcodes: *([^ ]+) +([^ ]+)")
      read_barcodes("${CMAKE_MATCH_1}" "${CMAKE_MATCH_2}")
      string(APPEND actual "${barcodes_out}")
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
  # Today written out, as a letter dates itself ("5 de Abril de 2008").
  set(meses Janeiro Fevereiro Março Abril Maio Junho Julho Agosto Setembro Outubro Novembro Dezembro)
  string(TIMESTAMP dia "%d")
  string(TIMESTAMP mes "%m")
  string(TIMESTAMP ano "%Y")
  string(REGEX REPLACE "^0" "" dia "${dia}")
  string(REGEX REPLACE "^0" "" mes "${mes}")
  math(EXPR mes "${mes} - 1")
  list(GET meses ${mes} nome_mes)
  string(REPLACE "${dia} de ${nome_mes} de ${ano}" "@HOJE_EXTENSO@" text "${text}")
  string(APPEND actual "${text}")
endforeach()

if(NOT actual STREQUAL expected)
  file(WRITE "${WORK}/actual.out" "${actual}")
  message(FATAL_ERROR "output differs from what is expected.\n--- expected\n${expected}--- printed (${WORK}/actual.out)\n${actual}--- stderr\n${errors}")
endif()
