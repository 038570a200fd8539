// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

/*!
    What a screen reader sees of the running program: the tree that the system's accessibility bus
    tells to another process, compared with a text that is kept. With NORVANE_UPDATE_BASELINES set
    that text is written anew.
*/
class tst_AccessibleTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isWhatItWas();
    void cleanupTestCase();

private:
    QTemporaryDir m_home;
    QProcess m_program;
};

namespace {

struct Reference
{
    QString service;
    QDBusObjectPath path;
};

const QDBusArgument &operator>>(const QDBusArgument &argument, Reference &reference)
{
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    // NOLINTNEXTLINE(bugprone-return-const-ref-from-parameter): QDBusArgument is read like this.
    return argument;
}

// Numbers of states in the protocol.
enum State { Checked = 4, Enabled = 8, Selected = 23, Showing = 25, HasPopup = 42 };

//! The bus that assistive tools listen to; it comes up when it is asked for.
QDBusConnection accessibilityBus()
{
    static const QString name = u"accessibility"_s;
    QDBusConnection bus(name);
    if (bus.isConnected())
        return bus;
    QDBusInterface launcher(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s);
    const QDBusReply<QString> address = launcher.call(u"GetAddress"_s);
    return address.isValid() ? QDBusConnection::connectToBus(address.value(), name) : bus;
}

QDBusMessage ask(const Reference &object, const QString &interface, const QString &method,
                 const QVariantList &arguments = {})
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
    call.setArguments(arguments);
    return accessibilityBus().call(call);
}

QDBusMessage ask(const Reference &object, const QString &method)
{
    return ask(object, u"org.a11y.atspi.Accessible"_s, method);
}

QList<Reference> childrenOf(const Reference &object)
{
    QList<Reference> children;
    const QVariantList answer = ask(object, u"GetChildren"_s).arguments();
    if (!answer.isEmpty())
        answer.first().value<QDBusArgument>() >> children;
    return children;
}

QString nameOf(const Reference &object)
{
    const QVariantList answer = ask(object, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                                    {u"org.a11y.atspi.Accessible"_s, u"Name"_s})
                                    .arguments();
    return answer.isEmpty() ? QString() : answer.first().value<QDBusVariant>().variant().toString();
}

quint64 statesOf(const Reference &object)
{
    QList<uint> words;
    const QVariantList answer = ask(object, u"GetState"_s).arguments();
    if (!answer.isEmpty())
        answer.first().value<QDBusArgument>() >> words;
    return words.value(0) | quint64(words.value(1)) << 32;
}

//! What is on the screen of \a object and below it, one line each.
QString describe(const Reference &object, int depth = 0)
{
    const quint64 states = statesOf(object);
    const auto is = [states](State state) { return bool(states >> state & 1); };
    if (depth > 0 && !is(Showing))
        return QString();
    const QString role = ask(object, u"GetRoleName"_s).arguments().value(0).toString();
    QString text = QString(2 * qsizetype(depth), u' ') + role;
    QString name = nameOf(object);
    if (!name.isEmpty())
        text += u" “"_s + name.replace(u'\n', u'⏎') + u'”';
    for (const auto &[state, word] :
         {std::pair(Checked, u" checked"_s), std::pair(Selected, u" selected"_s),
          std::pair(HasPopup, u" menu"_s)}) {
        if (is(state))
            text += word;
    }
    if (!is(Enabled))
        text += u" disabled"_s;
    text += u'\n';
    const QList<Reference> children = childrenOf(object);
    for (const Reference &child : children)
        text += describe(child, depth + 1);
    return text;
}

QString describeProgram()
{
    const Reference desktop{u"org.a11y.atspi.Registry"_s,
                            QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)};
    const QList<Reference> programs = childrenOf(desktop);
    for (const Reference &program : programs) {
        if (nameOf(program) == "norvane-workbench"_L1)
            return describe(program);
    }
    return QString();
}

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

void tst_AccessibleTree::initTestCase()
{
    // A folder of as many names on every machine, so that there are as many crumbs.
    const QString file = m_home.filePath(u"letter.txt"_s);
    QFile letter(file);
    QVERIFY(letter.open(QIODevice::WriteOnly) && letter.write("Dear reader\n") > 0);
    letter.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    environment.insert(u"HOME"_s, m_home.path());
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_program.setProcessEnvironment(environment);
    m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_program.start(QStringLiteral(WORKBENCH), {file});
    QVERIFY(m_program.waitForStarted());
    QVERIFY(accessibilityBus().isConnected());
}

void tst_AccessibleTree::isWhatItWas()
{
    const QString baseline = QFINDTESTDATA("accessible-tree.txt");
    const QString expected = read(baseline);
    const bool updates = qEnvironmentVariableIsSet("NORVANE_UPDATE_BASELINES");
    static const QRegularExpression time(u"“[^”]* \\d\\d:\\d\\d:\\d\\d”"_s);
    QString tree;
    // It is told while it is being built: a new one is taken for complete when it is told twice.
    const auto isComplete = [&] {
        const QString before = tree;
        tree = describeProgram();
        tree.replace(m_home.path(), u"HOME"_s).replace(time, u"“TIME”"_s);
        return updates ? tree.contains(u"Dear reader"_s) && tree == before : tree == expected;
    };
    const bool complete = QTest::qWaitFor(isComplete, 60'000);
    if (updates) {
        QFile file(baseline);
        QVERIFY(complete && file.open(QIODevice::WriteOnly) && file.write(tree.toUtf8()) > 0);
        return;
    }
    const QStringList told = tree.split(u'\n');
    const QStringList wanted = expected.split(u'\n');
    for (qsizetype i = 0; i < qMax(told.size(), wanted.size()); ++i)
        QCOMPARE(told.value(i), wanted.value(i));
}

void tst_AccessibleTree::cleanupTestCase()
{
    m_program.kill();
    m_program.waitForFinished();
    QDBusConnection::disconnectFromBus(u"accessibility"_s);
}

QTEST_GUILESS_MAIN(tst_AccessibleTree)
#include "tst_AccessibleTree.moc"
