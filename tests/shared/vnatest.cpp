// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <fuzz/census.h>

#include <memory>

namespace VnaTest
{

namespace
{

QtMessageHandler s_next = nullptr;
QStringList s_expected;
QStringList s_unexpected;
std::unique_ptr<Fuzz::Census> s_census;

/// What a platform plugin cannot do (raise a window, grab the keyboard) is no fault of ours, and a
/// drag may leave its window, which Qt 6 remarks on.
bool isAboutTheTest(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support"))
        || message.startsWith(QLatin1String("Mouse event at "));
}

void watchMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !isAboutTheTest(message)
        && !s_expected.removeOne(message))
        s_unexpected << message;
    s_next(type, context, message);
}

} // namespace

void TestCase::expectWarning(const QString &text)
{
    s_expected << text;
    QTest::ignoreMessage(QtWarningMsg, qPrintable(text));
}

void TestCase::init()
{
    s_expected.clear();
    s_unexpected.clear();
    s_next = qInstallMessageHandler(watchMessages);
    s_census = std::make_unique<Fuzz::Census>();
}

void TestCase::cleanup()
{
    // Objects deleted later must not carry their warnings into the next test function.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(s_census, "an init() of the test did not call the one of TestCase");
    QStringList left = s_census->grown();
    // Those that a thread of their own deletes may need a moment.
    QElapsedTimer timer;
    timer.start();
    while (!left.isEmpty() && timer.elapsed() < 2000) {
        QTest::qWait(10);
        left = s_census->grown();
    }
    s_census.reset();
    qInstallMessageHandler(s_next);
    QVERIFY2(
        s_unexpected.isEmpty(),
        qPrintable(QStringLiteral("unexpected warning: ") + s_unexpected.join(QLatin1Char('\n'))));
    QVERIFY2(left.isEmpty(),
             qPrintable(QStringLiteral("not destroyed: ") + left.join(QLatin1String(", "))));
}

Row::~Row()
{
    if (QTest::currentTestFailed())
        qInfo("in the row \"%s\"", qPrintable(m_name));
}

QString dataPath(const QString &name)
{
    return QStringLiteral(VNA_TEST_DATA_DIR "/") + name;
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

} // namespace VnaTest
