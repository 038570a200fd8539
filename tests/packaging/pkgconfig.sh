# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# pkgconfig.sh SOURCE...: the program, built with nothing but a compiler and pkg-config, and run.
# TRANSLATED is 1 if the translations have to be where pkg-config says.

set -e
$CXX $CXXFLAGS -std=c++17 -fPIC "$@" -o app $(pkg-config --cflags --libs norvane)
LD_LIBRARY_PATH=$(pkg-config --variable=libdir norvane):$LD_LIBRARY_PATH ./app
[ "$TRANSLATED" = 0 ] || [ -e "$(pkg-config --variable=translationsdir norvane)/norvane_de.qm" ]
