# Compares the exported symbols of a library with the list that is kept of them, or writes that list.
#
#   cmake -D LIBRARY=file -D LIST=file -D NM=program | -D OBJDUMP=program -D CXXFILT=program
#         [-D WRITE=ON] -P exports.cmake
#
# NM reads a shared object, OBJDUMP a DLL. The list holds demangled names, sorted, each once:
# constructors and destructors have several symbols of one name.
cmake_minimum_required(VERSION 3.25)

if(OBJDUMP)
    execute_process(COMMAND "${OBJDUMP}" -p "${LIBRARY}" OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\\+base\\[ *[0-9]+\\] +[0-9a-f]+ _[^\n]+" lines "${table}")
    list(TRANSFORM lines REPLACE "^.* " "")
else()
    execute_process(COMMAND "${NM}" --dynamic --defined-only --format=posix "${LIBRARY}"
                    OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${table}")
    list(TRANSFORM lines REPLACE " .*$" "")
endif()
list(LENGTH lines count)
if(count EQUAL 0)
    message(FATAL_ERROR "${LIBRARY} exports nothing, or its table could not be read.")
endif()

string(REPLACE ";" "\n" names "${lines}")
file(WRITE "${LIBRARY}.symbols" "${names}\n")
execute_process(COMMAND "${CXXFILT}" INPUT_FILE "${LIBRARY}.symbols" OUTPUT_VARIABLE names
                COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE "${LIBRARY}.symbols")
# Brackets and semicolons have a meaning in CMake's lists; a name has no line break.
string(REPLACE "[" "<:" names "${names}")
string(REPLACE "]" ":>" names "${names}")
string(REGEX MATCHALL "[^\n]+" names "${names}")
list(REMOVE_DUPLICATES names)
list(SORT names)

if(WRITE)
    string(REPLACE ";" "\n" text "${names}")
    string(REPLACE "<:" "[" text "${text}")
    string(REPLACE ":>" "]" text "${text}")
    file(WRITE "${LIST}" "${text}\n")
    return()
endif()

file(READ "${LIST}" expected)
string(REPLACE "[" "<:" expected "${expected}")
string(REPLACE "]" ":>" expected "${expected}")
string(REGEX MATCHALL "[^\n]+" expected "${expected}")
set(added ${names})
list(REMOVE_ITEM added ${expected})
set(missing ${expected})
list(REMOVE_ITEM missing ${names})
if(added OR missing)
    list(TRANSFORM added PREPEND "\n  + ")
    list(TRANSFORM missing PREPEND "\n  - ")
    string(REPLACE "<:" "[" difference "${missing}${added}")
    string(REPLACE ":>" "]" difference "${difference}")
    message(FATAL_ERROR "The exported symbols are not those of ${LIST}:${difference}\n"
                        "If that is meant, write the lists anew: ./dev exports")
endif()
list(LENGTH names count)
message(STATUS "${count} names, as listed")
