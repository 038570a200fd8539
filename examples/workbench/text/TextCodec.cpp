// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextCodec.h"

#include <QtCore/QStringConverter>

namespace Workbench {

static QStringConverter::Encoding converter(TextCodec::Encoding encoding)
{
    switch (encoding) {
    case TextCodec::Encoding::Utf8:
    case TextCodec::Encoding::Utf8Bom:
        return QStringConverter::Utf8;
    case TextCodec::Encoding::Utf16Le:
        return QStringConverter::Utf16LE;
    case TextCodec::Encoding::Utf16Be:
        return QStringConverter::Utf16BE;
    case TextCodec::Encoding::Latin1:
        return QStringConverter::Latin1;
    }
    Q_UNREACHABLE_RETURN(QStringConverter::Utf8);
}

static QByteArray byteOrderMark(TextCodec::Encoding encoding)
{
    switch (encoding) {
    case TextCodec::Encoding::Utf8Bom:
        return QByteArrayLiteral("\xEF\xBB\xBF");
    case TextCodec::Encoding::Utf16Le:
        return QByteArrayLiteral("\xFF\xFE");
    case TextCodec::Encoding::Utf16Be:
        return QByteArrayLiteral("\xFE\xFF");
    case TextCodec::Encoding::Utf8:
    case TextCodec::Encoding::Latin1:
        return QByteArray();
    }
    Q_UNREACHABLE_RETURN(QByteArray());
}

static TextCodec::Encoding markedEncoding(const QByteArray &bytes)
{
    const QList<TextCodec::Encoding> encodings = TextCodec::encodings();
    for (TextCodec::Encoding encoding : encodings) {
        const QByteArray mark = byteOrderMark(encoding);
        if (!mark.isEmpty() && bytes.startsWith(mark))
            return encoding;
    }
    return TextCodec::Encoding::Utf8;
}

static QString decodeContent(QByteArrayView bytes, TextCodec::Encoding encoding)
{
    // Half a character at the end would wait for its other half and be lost otherwise. A byte
    // order mark that is not the file's is content.
    QStringDecoder decoder(converter(encoding),
                           QStringConverter::Flag::Stateless
                               | QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

QList<TextCodec::Encoding> TextCodec::encodings()
{
    return {Encoding::Utf8, Encoding::Utf8Bom, Encoding::Utf16Le, Encoding::Utf16Be,
            Encoding::Latin1};
}

QString TextCodec::name(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8:
        return tr("UTF-8");
    case Encoding::Utf8Bom:
        return tr("UTF-8 with BOM");
    case Encoding::Utf16Le:
        return tr("UTF-16 LE");
    case Encoding::Utf16Be:
        return tr("UTF-16 BE");
    case Encoding::Latin1:
        return tr("Latin-1");
    }
    Q_UNREACHABLE_RETURN(QString());
}

TextCodec::Decoded TextCodec::decode(const QByteArray &bytes)
{
    Decoded decoded;
    decoded.encoding = markedEncoding(bytes);
    decoded.text = decodeContent(QByteArrayView(bytes).mid(byteOrderMark(decoded.encoding).size()),
                                 decoded.encoding);
    if (encode(decoded.text, decoded.encoding) == bytes)
        return decoded;
    if (decoded.encoding == Encoding::Utf8) {
        decoded.encoding = Encoding::Latin1;
        decoded.text = QString::fromLatin1(bytes);
        decoded.guessed = true;
    } else {
        decoded.damaged = true;
    }
    return decoded;
}

std::optional<QByteArray> TextCodec::encode(const QString &text, Encoding encoding)
{
    const QByteArray bytes =
        QStringEncoder(converter(encoding), QStringConverter::Flag::Stateless)(text);
    if (decodeContent(bytes, encoding) != text)
        return std::nullopt;
    return byteOrderMark(encoding) + bytes;
}

} // namespace Workbench
