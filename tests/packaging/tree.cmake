# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# Every source names its licence, and line ends are as .gitattributes wants them, whatever an
# editor or a checkout made of them.

cmake_minimum_required(VERSION 3.25)

file(GLOB files ${TREE}/* ${TREE}/.clang-*)
foreach(room IN ITEMS
        .ci address benchmarks cmake debian dock docs examples frame gallery include res ribbon scripts
        tests translations)
    file(GLOB_RECURSE found ${TREE}/${room}/*)
    list(APPEND files ${found})
endforeach()

# Samples and test data are no sources, and have whatever line ends they are about.
set(sources "(/CMakeLists\\.txt|/dev|/run|/rules|/on-display|/try-packages|\\.(cmake|cpp|h|in|py|sh))$")
list(FILTER files INCLUDE REGEX "${sources}|\\.(css|json|md|qrc|svg)$|/\\.clang-[a-z]+$")
foreach(file IN LISTS files)
    # Read as bytes, because a file that is read as text loses its carriage returns.
    file(READ ${file} content HEX)
    string(REGEX REPLACE "(..)" " \\1" content "${content}")
    if(file MATCHES "\\.css$")
        string(REPLACE " 0d 0a" "" content "${content}")
        string(FIND "${content}" " 0a" wrong)
    else()
        string(FIND "${content}" " 0d" wrong)
    endif()
    if(NOT wrong EQUAL -1)
        message(SEND_ERROR "${file}: has a wrong line end")
    endif()

    if(file MATCHES "${sources}")
        file(STRINGS ${file} licence LIMIT_COUNT 1 REGEX "SPDX-License-Identifier: MIT$")
        if(NOT licence)
            message(SEND_ERROR "${file}: does not name its licence")
        endif()
    endif()
endforeach()
list(LENGTH files count)
message(STATUS "${count} files looked at")
