// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace Workbench {

/*!
    Turns the bytes of a file into text and back. A file in one of the encodings comes back byte
    by byte if its text was not changed.
*/
class TextCodec
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::TextCodec)

public:
    //! The two of UTF-16 always start with their byte order mark.
    enum class Encoding { Utf8, Utf8Bom, Utf16Le, Utf16Be, Latin1 };

    struct Decoded
    {
        QString text;
        Encoding encoding = Encoding::Utf8;
        //! The text does not give back the bytes: something could not be decoded.
        bool damaged = false;
        //! Not UTF-8 and without a byte order mark: read as Latin-1, which keeps every byte.
        bool guessed = false;
    };

    static QList<Encoding> encodings();
    static QString name(Encoding encoding);

    static Decoded decode(const QByteArray &bytes);
    //! Nothing if \a encoding lacks one of the characters.
    static std::optional<QByteArray> encode(const QString &text, Encoding encoding);
};

} // namespace Workbench
