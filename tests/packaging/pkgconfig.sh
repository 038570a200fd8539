# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# pkgconfig.sh SOURCE...: the program, built with nothing but a compiler and pkg-config, and run.

set -e
$CXX $CXXFLAGS -std=c++17 -fPIC "$@" -o app $(pkg-config --cflags --libs norvane)
LD_LIBRARY_PATH=$(pkg-config --variable=libdir norvane):$LD_LIBRARY_PATH ./app
