# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# Only developer builds are strict: a newer compiler must not break a user's build.
function(norvane_enable_warnings target)
    if(NORVANE_DEVELOPER_BUILD)
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
    endif()
endfunction()
