// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"
#include "Steps.h"
#include "TestCase.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QRandomGenerator>

using namespace Norvane;
using namespace Qt::StringLiterals;

// Galleries whose items are collected, searched, moved and deleted in any order.
class tst_RibbonGalleryCollecting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithAModel_data();
    void agreesWithAModel();
};

namespace {

// What a gallery is, in numbers: an action is its number, or none once it is deleted.
struct Model
{
    static constexpr int none = -1;

    struct Item
    {
        int action = none;
        QString text;
        bool collected = false;
        bool heeded = true;
        bool hidden = false;
    };

    struct Group
    {
        QString title;
        QList<Item> items;
        bool hidden = false;

        void search(const QString &text)
        {
            hidden = true;
            for (Item &item : items) {
                item.hidden = !item.text.contains(text);
                hidden = hidden && item.hidden;
            }
        }

        Item *first(int action)
        {
            for (Item &item : items) {
                if (action != none && item.action == action)
                    return &item;
            }
            return nullptr;
        }

        void remove(int action)
        {
            for (qsizetype i = 0; i < items.size(); ++i) {
                if (action != none && items.at(i).action == action) {
                    items.removeAt(i);
                    return;
                }
            }
        }

        int need(int inARow) const
        {
            return 98 + 74 * (qMax(0, int(items.size()) - 1) / qMax(1, inARow));
        }
    };

    void setCollected(Item *item, bool value)
    {
        item->collected = value;
        if (!item->heeded || item->action == none)
            return;
        if (value) {
            copies.items.append({item->action, item->text, true, true, false});
            copies.hidden = false;
        } else {
            copies.remove(item->action);
        }
    }

    void clickCopy(int index)
    {
        Item &copy = copies.items[index];
        copy.collected = !copy.collected;
        const int action = copy.action;
        copies.remove(action);
        for (Group &group : groups) {
            if (Item *item = group.first(action))
                setCollected(item, false);
        }
    }

    void search(const QString &text)
    {
        if (text == searched)
            return;
        searched = text;
        foundNothing = true;
        if (enabled) {
            copies.search(text);
            foundNothing = copies.hidden;
        }
        for (Group &group : groups) {
            group.search(text);
            foundNothing = foundNothing && group.hidden;
        }
    }

    void refresh()
    {
        QList<int> wanted;
        const auto want = [&](const Item &item) {
            if (wanted.size() < displayCount && item.action != none)
                wanted << item.action;
        };
        for (const Item &copy : std::as_const(copies.items))
            want(copy);
        for (const Group &group : std::as_const(groups)) {
            for (const Item &item : group.items) {
                if (!item.collected)
                    want(item);
            }
        }
        if (wanted == displayed)
            return;
        displayed = wanted;
        strip.removeIf([](const QString &text) { return text != u"-"; });
        for (const int action : std::as_const(wanted))
            strip << texts.at(action);
        strip << QStringList(qMax(0, displayCount - int(wanted.size())), u"-"_s);
    }

    int height() const
    {
        int sum = 32;
        if (!copies.items.isEmpty() && !copies.hidden)
            sum += copies.need(displayCount);
        for (const Group &group : groups)
            sum += group.hidden ? 0 : group.need(displayCount);
        return sum == 32 ? 62 : sum;
    }

    QStringList texts;
    QList<Group> groups;
    Group copies;
    QString searched;
    bool foundNothing = false;
    bool enabled = true;
    bool open = false;
    int displayCount = 6;
    QList<int> displayed;
    QStringList strip;
};

// A gallery and its model, to both of which each step is done.
class Game
{
public:
    explicit Game(QStringList *story)
        : m_story(story)
    {
        for (const QString &text : {u"a"_s, u"ab"_s, u"b"_s, u"bc"_s, u"c"_s}) {
            m_model.texts << text;
            m_actions << m_window.createAction(text);
        }
        for (const QString &title : {u"First"_s, u"Second"_s, u"Third"_s}) {
            m_window.gallery->addGroup(title);
            m_model.groups.append({title, {}, false});
        }
        const QList<QList<int>> numbers = {{0, 1, 2, 0}, {2, 3, 0}, {4}};
        for (int group = 0; group < numbers.size(); ++group) {
            for (const int number : numbers.at(group))
                addItem(group, number);
        }
    }

    bool begin()
    {
        m_model.refresh();
        return m_window.open();
    }

    void end()
    {
        if (m_model.open)
            m_window.menu()->close();
    }

    bool play(const Steps::Step &step)
    {
        const int group = step.number % int(m_model.groups.size());
        QList<Model::Item> &items = m_model.groups[group].items;
        const int item = step.number / 3 % int(items.size());
        switch (step.kind) {
        case 0:
        case 1:
            *m_story << u"%1 %2 of %3"_s.arg(step.kind ? u"un-collect" : u"collect")
                            .arg(item)
                            .arg(group);
            if (m_model.enabled)
                m_model.setCollected(&items[item], step.kind == 0);
            return m_window.gallery->setItemCollected(group, item, step.kind == 0)
                == m_model.enabled;
        case 2:
        case 3:
            return clickItem(group, item);
        case 4:
        case 5:
            return clickCopy(step.number);
        case 6:
        case 7:
            return search(step.number);
        case 8:
            return move(group, step.number % 2 == 0);
        case 9:
            return openOrClose();
        case 10:
            return addItem(group, step.number / 3 % int(m_actions.size()));
        case 11:
            m_model.enabled = step.number % 3 != 0;
            *m_story << u"collecting is %1"_s.arg(m_model.enabled);
            m_window.gallery->setCollectEnabled(m_model.enabled);
            return true;
        case 12:
            // With none, the popup would be too narrow for the mouse.
            m_model.displayCount = 1 + step.number % 8;
            *m_story << u"display %1"_s.arg(m_model.displayCount);
            m_window.gallery->setDispalyCount(m_model.displayCount);
            return true;
        case 13:
            return deleteAction(step.number);
        default:
            return reshow();
        }
    }

    QString wrong() const
    {
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
        for (int i = 0; i < m_model.groups.size(); ++i) {
            if (m_window.group(i)->title() != m_model.groups.at(i).title)
                return u"other order of groups"_s;
            QString difference = wrong(m_model.groups.at(i), m_window.group(i));
            if (!difference.isEmpty())
                return difference;
        }
        QString difference = wrong(m_model.copies, m_window.collected());
        if (!difference.isEmpty())
            return difference;
        if (m_window.menu()->isVisible() != m_model.open)
            return u"the popup is open or not"_s;
        const int height = m_window.popup()->computedHeight(false);
        if (m_model.open && height != m_model.height())
            return u"height %1, not %2"_s.arg(height).arg(m_model.height());
        if (m_window.noMatchLabel()->isHidden() == m_model.foundNothing)
            return u"the label"_s;
        if (m_window.strip() != m_model.strip)
            return u"strip %1, not %2"_s.arg(m_window.strip().join(u' '), m_model.strip.join(u' '));
        return {};
    }

private:
    bool clickItem(int group, int item)
    {
        Model::Item &wanted = m_model.groups[group].items[item];
        if (!m_model.open || m_model.groups.at(group).hidden || wanted.hidden || !wanted.heeded
            || !isInReach(m_window.item(group, item))) {
            return true;
        }
        *m_story << u"click %1 of %2"_s.arg(item).arg(group);
        click(m_window.item(group, item));
        m_model.setCollected(&wanted, !wanted.collected);
        return true;
    }

    bool clickCopy(int number)
    {
        if (!m_model.open || m_model.copies.items.isEmpty() || m_model.copies.hidden)
            return true;
        const int index = number % int(m_model.copies.items.size());
        if (m_model.copies.items.at(index).hidden || !isInReach(m_window.collected()->item(index)))
            return true;
        *m_story << u"click copy %1"_s.arg(index);
        click(m_window.collected()->item(index));
        m_model.clickCopy(index);
        return true;
    }

    // Scrolls to the widget. A popup whose rows are shorter than the display count is too low for
    // its items, so that some are out of reach.
    bool isInReach(QWidget *widget)
    {
        m_window.popup()->ensureWidgetVisible(widget);
        const auto hits = [&](QPoint position) {
            return m_window.menu()->childAt(widget->mapTo(m_window.menu(), position)) == widget;
        };
        return hits(widget->rect().center()) && hits({widget->width() - 2, 2});
    }

    void click(const RibbonGalleryItem *item)
    {
        GalleryWindow::clickMarker(item);
        Gui::moveMouse(m_window.popup(), {0, 0});
    }

    bool search(int number)
    {
        if (!m_model.open)
            return true;
        const QString text = QStringList({u""_s, u"a"_s, u"b"_s, u"bc"_s, u"z"_s}).at(number % 5);
        *m_story << u"search \"%1\""_s.arg(text);
        m_window.popup()->verticalScrollBar()->setValue(0);
        m_window.search(text);
        // The field is emptied, and then there is one letter after the other.
        for (int length = 0; length <= text.size(); ++length)
            m_model.search(text.first(length));
        return m_window.edit()->text() == text;
    }

    bool move(int group, bool up)
    {
        const qsizetype last = m_model.groups.size() - 1;
        if (!m_model.open || m_model.groups.at(group).hidden || group == (up ? 0 : last))
            return true;
        QPushButton *button = up ? GalleryWindow::toTopOf(m_window.group(group))
                                 : GalleryWindow::toBottomOf(m_window.group(group));
        if (!isInReach(button))
            return true;
        *m_story << u"move %1 %2"_s.arg(group).arg(up ? u"up" : u"down");
        Gui::click(button);
        m_model.groups.move(group, up ? 0 : last);
        m_model.refresh();
        return true;
    }

    bool openOrClose()
    {
        *m_story << (m_model.open ? u"close"_s : u"open"_s);
        if (m_model.open) {
            m_window.closePopup();
            m_model.search(QString());
            m_model.refresh();
        } else {
            // Placeholders may have moved the button out of the window.
            m_window.popupButton()->click();
        }
        m_model.open = !m_model.open;
        return true;
    }

    bool addItem(int group, int number)
    {
        if (!m_actions.at(number))
            return true;
        if (m_story)
            *m_story << u"add %1 to %2"_s.arg(number).arg(group);
        m_model.groups[group].items.append(
            {number, m_model.texts.at(number), false, m_model.enabled, false});
        return m_window.gallery->addItem(group, m_actions.at(number))
            == m_model.groups.at(group).items.size() - 1;
    }

    bool deleteAction(int number)
    {
        // Few, so that some are left.
        if (number % 4 != 0)
            return true;
        const int index = number / 4 % int(m_actions.size());
        *m_story << u"delete %1"_s.arg(index);
        delete m_actions.at(index);
        m_actions[index] = nullptr;
        const auto forget = [index](Model::Group *group) {
            for (Model::Item &item : group->items)
                item.action = item.action == index ? Model::none : item.action;
        };
        for (Model::Group &group : m_model.groups)
            forget(&group);
        forget(&m_model.copies);
        return true;
    }

    bool reshow()
    {
        if (m_model.open)
            return true;
        *m_story << u"show again"_s;
        m_window.gallery->hide();
        m_window.gallery->show();
        m_model.refresh();
        return true;
    }

    static QString wrong(const Model::Group &model, const RibbonGalleryGroup *group)
    {
        const QString name = group->title();
        if (group->count() != model.items.size())
            return u"%1 has %2 items"_s.arg(name).arg(group->count());
        if (!model.items.isEmpty() && group->isHidden() != model.hidden)
            return u"%1 is hidden or not"_s.arg(name);
        for (int i = 0; i < group->count(); ++i) {
            const RibbonGalleryItem *item = group->item(i);
            const Model::Item &wanted = model.items.at(i);
            if (item->text() != wanted.text
                || !item->defaultAction() != (wanted.action == Model::none))
                return u"%1 has %2 at %3"_s.arg(name, item->text()).arg(i);
            if (item->isHidden() != wanted.hidden)
                return u"%1 is hidden or not at %2"_s.arg(name).arg(i);
            const bool marked = !GalleryWindow::markerOf(item)->isHidden();
            if (item->isCollected() != wanted.collected || marked != wanted.collected)
                return u"%1 is collected or not at %2"_s.arg(name).arg(i);
        }
        return {};
    }

    QStringList *m_story = nullptr;
    GalleryWindow m_window;
    QList<QAction *> m_actions;
    Model m_model;
};

} // namespace

void tst_RibbonGalleryCollecting::agreesWithAModel_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 12; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void tst_RibbonGalleryCollecting::agreesWithAModel()
{
    QFETCH(int, seed);
    QRandomGenerator random(seed);
    QList<Steps::Step> steps = {{9, 0}};
    for (int i = 0; i < 120; ++i)
        steps.append({random.bounded(15), random.bounded(1000)});
    const QString wrong =
        Steps::play(steps, [](const QList<Steps::Step> &played, QStringList *story) -> QString {
            Game game(story);
            story->clear();
            if (!game.begin())
                return u"no window"_s;
            QString found = game.wrong();
            for (const Steps::Step &step : played) {
                if (found.isEmpty())
                    found = game.play(step) ? game.wrong() : u"refused"_s;
            }
            game.end();
            return found;
        });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

NORVANE_TEST_MAIN(tst_RibbonGalleryCollecting)
#include "tst_RibbonGalleryCollecting.moc"
