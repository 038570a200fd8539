# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# What the documents link to and show is there.

cmake_minimum_required(VERSION 3.25)

file(GLOB pages RELATIVE ${TREE} ${TREE}/*.md ${TREE}/docs/*.md ${TREE}/docs/guide/*.md)
set(count 0)
foreach(page IN LISTS pages)
    file(READ ${TREE}/${page} text)
    string(REGEX REPLACE "\n```[^`]*```\n" "\n" text "${text}")
    # Brackets and semicolons would be taken for a list's.
    string(REPLACE "](" "@(" text "${text}")
    string(REGEX REPLACE "[];[]" " " text "${text}")
    string(REGEX MATCHALL "@\\([^)]*\\)" links "${text}")
    foreach(link IN LISTS links)
        if(link MATCHES "^@\\((https:|#)" OR NOT link MATCHES "^@\\(([^#)]+)")
            continue()
        endif()
        set(target ${CMAKE_MATCH_1})
        cmake_path(GET page PARENT_PATH folder)
        if(NOT EXISTS ${TREE}/${folder}/${target})
            message(SEND_ERROR "${page} leads to ${target}, which is not there")
        endif()
        math(EXPR count "${count} + 1")
    endforeach()
endforeach()
if(count LESS 40)
    message(SEND_ERROR "Only ${count} links were found")
endif()
message(STATUS "${count} links")
