# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# The tour succeeds, leaves a picture of every scene, and leaves the samples as they are.

function(hashes variable)
    file(GLOB files ${SAMPLES}/*)
    set(all "")
    foreach(file ${files})
        file(SHA256 ${file} hash)
        list(APPEND all "${file} ${hash}")
    endforeach()
    set(${variable} "${all}" PARENT_SCOPE)
endfunction()

hashes(before)
file(REMOVE_RECURSE ${PICTURES})
execute_process(COMMAND ${PROGRAM} ${ARGUMENTS} --tour ${PICTURES}
    RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The tour ended with ${result}: ${errors}")
endif()
hashes(after)
if(NOT before STREQUAL after)
    message(FATAL_ERROR "The tour changed the samples")
endif()
file(GLOB pictures ${PICTURES}/*.png)
list(LENGTH pictures count)
if(count LESS 10)
    message(FATAL_ERROR "The tour left ${count} pictures only")
endif()
foreach(picture ${pictures})
    if(picture MATCHES "failed")
        message(FATAL_ERROR "A scene failed: ${picture}")
    endif()
endforeach()
