// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextSnippets.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

namespace Workbench {

using namespace Qt::StringLiterals;

QList<TextSnippetGroup> TextSnippets::groups()
{
    return {
        {tr("Date and Time"),
         {{tr("Date"),
           [] { return QLocale().toString(QDate::currentDate(), QLocale::LongFormat); }},
          {tr("Short Date"),
           [] { return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat); }},
          {tr("ISO Date"), [] { return QDate::currentDate().toString(Qt::ISODate); }},
          {tr("Time"),
           [] { return QLocale().toString(QTime::currentTime(), QLocale::ShortFormat); }},
          {tr("Time Stamp"), [] { return QDateTime::currentDateTime().toString(Qt::ISODate); }}}},
        {tr("Structure"),
         {fixed(tr("Heading"), tr("Heading\n=======\n\n")),
          fixed(tr("Bullets"), tr("- First\n- Second\n- Third\n")),
          fixed(tr("Numbers"), tr("1. First\n2. Second\n3. Third\n")),
          fixed(tr("Tasks"), tr("[ ] To do\n[ ] To do\n[x] Done\n")),
          fixed(tr("Table"),
                tr("Name       Value\n"
                   "----------------\n"
                   "First          1\n"
                   "Second         2\n"))}},
        {tr("Letter"),
         {fixed(tr("Greeting"), tr("Dear Sir or Madam,\n\n")),
          fixed(tr("Thanks"), tr("Thank you for your letter.\n")),
          fixed(tr("Reminder"), tr("May I remind you of my letter?\n")),
          fixed(tr("Closing"), tr("Yours faithfully,\n\n\n")),
          fixed(tr("Postscript"), tr("P.S. "))}},
        {tr("Signs"),
         {fixed(tr("Dash"), u"–"_s), fixed(tr("Ellipsis"), u"…"_s), fixed(tr("Arrow"), u"→"_s),
          fixed(tr("Euro"), u"€"_s), fixed(tr("Section"), u"§"_s)}},
    };
}

TextSnippet TextSnippets::fixed(const QString &name, const QString &text)
{
    return {name, [text] { return text; }};
}

} // namespace Workbench
