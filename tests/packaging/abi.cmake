# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# What a program that was linked with the library relies on: the names of the exported functions,
# the sizes of the tables of virtual functions, and those of the objects. It is compared with DUMP,
# or written there with RENEW.

cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${NM} --dynamic --demangle --defined-only --print-size ${LIBRARY}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${SIZES} OUTPUT_VARIABLE objects COMMAND_ERROR_IS_FATAL ANY)
# A list cannot hold these.
string(REGEX REPLACE "[][;]" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
string(REPLACE "\n" ";" lines "${objects}")

# Weak functions are copies of inline ones: how many there are is up to the compiler.
foreach(symbol IN LISTS symbols)
    if(symbol MATCHES "^[0-9a-f]+ ([0-9a-f]+) [BDRTV] (.*)$")
        set(size ${CMAKE_MATCH_1})
        set(name "${CMAKE_MATCH_2}")
        if(name MATCHES "^(vtable for |typeinfo for |non-virtual thunk to )?Norvane(::|Agent)")
            if(name MATCHES "^vtable")
                math(EXPR size "0x${size}")
                string(APPEND name " ${size}")
            endif()
            list(APPEND lines "${name}")
        endif()
    endif()
endforeach()
list(REMOVE_ITEM lines "")
list(REMOVE_DUPLICATES lines)
list(SORT lines)

if(RENEW)
    list(JOIN lines "\n" text)
    file(WRITE ${DUMP} "${text}\n")
    return()
endif()

file(STRINGS ${DUMP} known)
set(gone ${known})
set(new ${lines})
list(REMOVE_ITEM gone ${lines})
list(REMOVE_ITEM new ${known})
foreach(line IN LISTS gone)
    message(SEND_ERROR "The binary interface has lost: ${line}")
endforeach()
foreach(line IN LISTS new)
    message(SEND_ERROR "The binary interface has got: ${line}")
endforeach()
if(gone OR new)
    message(SEND_ERROR "If this is meant, build the target norvane_update_abi;"
        " what was lost takes another SOVERSION once there are users.")
endif()
list(LENGTH lines count)
message(STATUS "${count} lines compared")
