// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// A dialog with a ribbon over its content: the frame agent lays it out.

#include <Norvane/NorvaneAgent.h>
#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>

#include <QtGui/QAction>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QSpinBox>

// The paper, to scale.
class Preview : public QWidget
{
public:
    void setPaper(int width, int height)
    {
        m_paper = QSizeF(width, height);
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QRectF paper(QPointF(), m_paper.scaled(size() - QSizeF(16, 16), Qt::KeepAspectRatio));
        paper.moveCenter(QRectF(rect()).center());
        QPainter painter(this);
        painter.setPen(Qt::gray);
        painter.setBrush(Qt::white);
        painter.drawRect(paper);
    }

private:
    QSizeF m_paper;
};

static QSpinBox *lengthBox(int value)
{
    auto *box = new QSpinBox;
    box->setRange(10, 2000);
    box->setSuffix(" mm");
    box->setValue(value);
    return box;
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    QDialog dialog;
    dialog.setWindowTitle("Paper Size");
    auto *width = lengthBox(210);
    auto *height = lengthBox(297);
    auto *content = new QWidget;
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *preview = new Preview;
    preview->setMinimumSize(160, 160);
    auto *lengths = new QFormLayout;
    lengths->addRow("&Width:", width);
    lengths->addRow("&Height:", height);
    auto *layout = new QGridLayout(content);
    layout->addLayout(lengths, 0, 0);
    layout->addWidget(preview, 0, 1);
    layout->addWidget(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    const auto showPaper = [=] { preview->setPaper(width->value(), height->value()); };
    QObject::connect(width, &QSpinBox::valueChanged, preview, showPaper);
    QObject::connect(height, &QSpinBox::valueChanged, preview, showPaper);
    showPaper();

    NorvaneAgent agent;
    agent.setup(&dialog, content);
    Norvane::RibbonPage *paper = agent.ribbonBar()->addPage("Paper", false);
    Norvane::RibbonGroup *sizes = paper->addGroup("Size");
    for (const auto &[name, size] :
         {std::pair("A3", QSize(297, 420)), {"A4", QSize(210, 297)}, {"A5", QSize(148, 210)}}) {
        auto *action = new QAction(QIcon(":/icons/text-file.svg"), name, &dialog);
        QObject::connect(action, &QAction::triggered, &dialog, [width, height, size = size] {
            width->setValue(size.width());
            height->setValue(size.height());
        });
        sizes->addAction(action);
    }
    auto *turn = new QAction(QIcon(":/icons/rotate-right.svg"), "Turn", &dialog);
    QObject::connect(turn, &QAction::triggered, &dialog, [width, height] {
        const int oldWidth = width->value();
        width->setValue(height->value());
        height->setValue(oldWidth);
    });
    paper->addGroup("Direction")->addAction(turn);

    dialog.resize(420, 360);
    dialog.show();
    return QApplication::exec();
}
