// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtTest/QTest>

/*!
    How many milliseconds a test waits for what is to happen. Five seconds, as Qt has it, are too
   short for a window that opens or a folder that is read while a machine is busy with other tests,
   and with sanitizers. What happens at once costs no more.
*/
inline constexpr int patience = 30'000;

#undef QTRY_VERIFY
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT(expression, patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(computed, expected) QTRY_COMPARE_WITH_TIMEOUT(computed, expected, patience)
