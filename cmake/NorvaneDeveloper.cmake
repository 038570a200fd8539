# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# Only developer builds are strict: a newer compiler must not break a user's build.
function(norvane_enable_warnings target)
    if(NORVANE_DEVELOPER_BUILD)
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
    endif()
endfunction()

# norvane_precompile_headers(<target> [headers...]): Qt's headers are most of what a file costs the
# compiler. All of them are slower again than these few. Builds that are not a developer's, and those
# with CMAKE_DISABLE_PRECOMPILE_HEADERS, find what a file forgot to include.
function(norvane_precompile_headers target)
    if(NORVANE_DEVELOPER_BUILD)
        target_precompile_headers(${target} PRIVATE
            <QAction> <QApplication> <QBoxLayout> <QLabel> <QMenu> <QPainter> <QStyleOption>
            <QToolButton> ${ARGN})
    endif()
endfunction()
