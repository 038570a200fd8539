// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QIcon>

// Gives every program that is measured the same style and font, and icons of its own.
namespace Look {

void apply();

// An icon of 16 and 24 pixels; numbers that are close look different.
QIcon createIcon(int number);

} // namespace Look
