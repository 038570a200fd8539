// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QTreeWidget>

namespace Workbench {

class Document;

//! What there is to know of the document in front and its file.
class PropertiesView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PropertiesView(QWidget *parent = nullptr);

    void showDocument(const Document *document);

private:
    void add(const QString &name, const QString &value);
};

} // namespace Workbench
