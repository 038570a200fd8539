# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# The library exports the classes that have a public header, and nothing else.

cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[][;]" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")

file(GLOB public RELATIVE ${HEADERS} ${HEADERS}/*.h)
list(TRANSFORM public REPLACE "\\.h$" "")

set(about "vtable for |typeinfo for |typeinfo name for |non-virtual thunk to |guard variable for ")
set(toolchain __bss_start _edata _end _init _fini __odr_asan)
set(exported "")
set(wrong "")
foreach(symbol IN LISTS symbols)
    if(NOT symbol MATCHES "^[0-9a-f]+ ([A-Za-z]) (${about})?(Norvane::)?([A-Za-z0-9_]+)")
        continue()
    endif()
    set(kind ${CMAKE_MATCH_1})
    set(namespace "${CMAKE_MATCH_3}")
    set(owner ${CMAKE_MATCH_4})
    if(owner IN_LIST public)
        list(APPEND exported ${owner})
    elseif(owner IN_LIST toolchain)
        continue()
    elseif(namespace OR NOT kind MATCHES "[uVW]")
        # What is left out here are the weak copies of other libraries' templates.
        string(APPEND wrong "\n  ${symbol}")
    endif()
endforeach()

list(REMOVE_DUPLICATES exported)
list(REMOVE_ITEM public ${exported})
if(wrong)
    message(SEND_ERROR "Exported, but of no class with a public header:${wrong}")
endif()
if(public)
    message(SEND_ERROR "Have a public header, but are not exported: ${public}")
endif()
list(LENGTH exported count)
message(STATUS "${count} classes exported: ${exported}")
