// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// A gallery in a ribbon: backgrounds for a canvas, in groups that the user can search, re-order and
// collect from.

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGallery.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>

#include <QtGui/QAction>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>

class Canvas : public QWidget
{
public:
    using QWidget::QWidget;

    void setColors(const QColor &top, const QColor &bottom)
    {
        m_top = top;
        m_bottom = bottom;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QLinearGradient gradient(0, 0, 0, height());
        gradient.setStops({{0, m_top}, {1, m_bottom}});
        QPainter(this).fillRect(rect(), gradient);
    }

private:
    QColor m_top = 0x3b5b92;
    QColor m_bottom = 0xf3b27a;
};

// Drawn large; the gallery scales it down to what the screen shows.
static QIcon swatch(const QColor &top, const QColor &bottom)
{
    QPixmap pixmap(96, 96);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(0, 0, 0, 96);
    gradient.setStops({{0, top}, {1, bottom}});
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(pixmap.rect(), 16, 16);
    return pixmap;
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    QMainWindow window;
    auto *canvas = new Canvas(&window);
    auto *ribbon = new Norvane::RibbonBar(&window);
    window.setMenuWidget(ribbon);
    window.setCentralWidget(canvas);

    auto *gallery = new Norvane::RibbonGallery;
    gallery->setCollectEnabled(true);
    const auto add = [&](const QString &group, const QString &text, QColor top, QColor bottom) {
        auto *action = new QAction(swatch(top, bottom), text, canvas);
        QObject::connect(action, &QAction::triggered, canvas,
                         [=] { canvas->setColors(top, bottom); });
        gallery->addItem(group, action);
    };
    add("Sky", "Dawn", 0x3b5b92, 0xf3b27a);
    add("Sky", "Noon", 0x2f80d0, 0xbfe3f7);
    add("Sky", "Dusk", 0x2b2350, 0xd76b6b);
    add("Sky", "Night", 0x060b1e, 0x29406f);
    add("Land", "Meadow", 0xa8d672, 0x3c7a3b);
    add("Land", "Desert", 0xf6dfa4, 0xc47f3d);
    add("Land", "Forest", 0x5c8f5e, 0x17352a);
    add("Water", "Lagoon", 0x9fe3dc, 0x11839a);
    add("Water", "Deep Sea", 0x1b5f8f, 0x04182e);
    add("Water", "Ice", 0xffffff, 0xa9cfe6);
    ribbon->addPage("Home", false)->addGroup("Colours")->addWidget(gallery);

    window.resize(760, 460);
    window.show();
    return QApplication::exec();
}
