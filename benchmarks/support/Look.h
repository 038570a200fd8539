// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

// Gives every program that is measured the same style and font.
namespace Look {

void apply();

} // namespace Look
