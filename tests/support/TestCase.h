// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Patience.h"

#include <QtTest/QTest>

#include <functional>

/*!
    The base of every test class: a warning that Qt prints fails the test that caused it, and so
    does a top-level widget that a test leaves behind (Qt's own list still reaches it, so the leak
    checker does not see it).
*/
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();
};

/*!
    Runs \a create's test object in an application with the bundled font, the Fusion style and a
    home folder of its own.
*/
int runTestCase(int argc, char **argv, const std::function<QObject *()> &create);

#define NORVANE_TEST_MAIN(TestClass)                                                               \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return runTestCase(argc, argv, [] { return new TestClass; });                              \
    }
