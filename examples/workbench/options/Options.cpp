// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "options/Options.h"

#include "picture/PictureFormats.h"
#include "text/TextOptions.h"

#include <QtCore/QSettings>

namespace Workbench {

using namespace Qt::StringLiterals;

Options::Options(QObject *parent)
    : QObject(parent)
    , m_text(new TextOptions(this))
{
    QSettings settings;
    settings.beginGroup("options"_L1);
    QFont font;
    const QString description = settings.value("font"_L1).toString();
    if (!description.isEmpty() && font.fromString(description) && font.pointSize() > 0)
        m_text->setFont(font);
    m_text->setWrap(settings.value("wrap"_L1, m_text->wrap()).toBool());
    m_text->setTabWidth(settings.value("tabWidth"_L1, m_text->tabWidth()).toInt());
    m_suffixes = settings.value("suffixes"_L1, defaultSuffixes()).toStringList();
    m_keepsLayout = settings.value("keepLayout"_L1, true).toBool();
    connect(m_text, &TextOptions::changed, this, &Options::save);
}

TextOptions *Options::text() const
{
    return m_text;
}

QStringList Options::suffixes() const
{
    return m_suffixes;
}

void Options::setSuffixes(const QStringList &suffixes)
{
    if (m_suffixes == suffixes)
        return;
    m_suffixes = suffixes;
    save();
    Q_EMIT suffixesChanged();
}

QStringList Options::defaultSuffixes()
{
    QStringList suffixes{u"c"_s,    u"cc"_s,   u"cmake"_s, u"conf"_s, u"cpp"_s,  u"css"_s,
                         u"csv"_s,  u"h"_s,    u"hpp"_s,   u"htm"_s,  u"html"_s, u"ini"_s,
                         u"js"_s,   u"json"_s, u"log"_s,   u"md"_s,   u"py"_s,   u"sh"_s,
                         u"toml"_s, u"tsv"_s,  u"txt"_s,   u"xml"_s,  u"yaml"_s, u"yml"_s};
    const QStringList pictures = PictureFormats::readPatterns();
    for (const QString &pattern : pictures)
        suffixes << pattern.mid(2).toLower();
    suffixes.removeDuplicates();
    return suffixes;
}

bool Options::keepsLayout() const
{
    return m_keepsLayout;
}

void Options::setKeepsLayout(bool keep)
{
    m_keepsLayout = keep;
    save();
}

void Options::save() const
{
    QSettings settings;
    settings.beginGroup("options"_L1);
    settings.setValue("font"_L1, m_text->font().toString());
    settings.setValue("wrap"_L1, m_text->wrap());
    settings.setValue("tabWidth"_L1, m_text->tabWidth());
    settings.setValue("suffixes"_L1, m_suffixes);
    settings.setValue("keepLayout"_L1, m_keepsLayout);
}

} // namespace Workbench
