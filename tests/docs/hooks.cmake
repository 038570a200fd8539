# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# The page on style hooks names every class, object name and property that a sheet selects, and none
# that the sheets and the sources do not know.

cmake_minimum_required(VERSION 3.25)

# hooks_of(<text> <variable>): Norvane--Class, #objectName and [property=value] in the text.
function(hooks_of text variable)
    string(REGEX REPLACE "{[^}]*}" " " text "${text}")
    # Brackets would be taken for a list's.
    string(REGEX REPLACE "\\[([A-Za-z]+)=\"?([A-Za-z0-9]+)\"?\\]" "@\\1=\\2@" text "${text}")
    string(REGEX MATCHALL "Norvane--[A-Za-z]+|#[A-Za-z]+|@[A-Za-z]+=[A-Za-z0-9]+@" hooks "${text}")
    list(REMOVE_DUPLICATES hooks)
    set(${variable} ${hooks} PARENT_SCOPE)
endfunction()

file(GLOB sheets ${TREE}/res/*/*.css)
set(selected "")
foreach(sheet IN LISTS sheets)
    file(READ ${sheet} text)
    hooks_of("${text}" hooks)
    list(APPEND selected ${hooks})
endforeach()
file(READ ${TREE}/docs/style-hooks.md text)
string(REGEX REPLACE "\n```\n[^`]*```\n" "" text "${text}")
hooks_of("${text}" described)

list(REMOVE_DUPLICATES selected)
list(LENGTH selected count)
set(missing ${selected})
list(REMOVE_ITEM missing ${described})
set(unknown ${described})
list(REMOVE_ITEM unknown ${selected})
if(count LESS 30)
    message(SEND_ERROR "Only ${count} hooks were found in the sheets")
endif()
if(missing)
    message(SEND_ERROR "Selected by a sheet and not described: ${missing}")
endif()
if(unknown)
    message(SEND_ERROR "Described and selected by no sheet: ${unknown}")
endif()
message(STATUS "${count} hooks")
