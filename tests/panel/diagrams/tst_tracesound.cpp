// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/diagrams/tracesound.h>
#include <smithchart/tracetone.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// What would have been heard.
struct Heard {
    QVector<QVector<qint16>> played;
    bool playing = false;
    int asked = 0; ///< how often for an output
};

class FakeOutput : public SoundOutput
{
public:
    explicit FakeOutput(Heard *heard)
        : m_heard(heard)
    {
    }

    void play(const QVector<qint16> &samples) override
    {
        m_heard->played.append(samples);
        m_heard->playing = true;
    }
    void stop() override { m_heard->playing = false; }
    bool isPlaying() const override { return m_heard->playing; }

private:
    Heard *m_heard;
};

} // namespace

class TraceSoundTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void tracesAndPointsAreHeard()
    {
        ChartDesk desk;
        Heard heard;
        TraceSound sound(&desk.model, desk.window.diagrams());
        sound.setOutput([&heard] {
            ++heard.asked;
            return std::make_unique<FakeOutput>(&heard);
        });
        QCOMPARE(heard.asked, 0); // a start is not slowed down by it
        sound.toggleTrace();
        const Parameter data = desk.model.traceData(*desk.model.trace(1)).parameter;
        QCOMPARE(heard.played.size(), 1);
        QCOMPARE(heard.played.last(),
                 SmithChart::traceSamples(data.real, data.imag, TraceSound::traceTime));
        sound.toggleTrace();
        QVERIFY(!heard.playing && heard.played.size() == 1);

        desk.plot()->setFocus();
        desk.press(Qt::Key_Home);
        QTest::mouseMove(desk.window.windowHandle(), desk.inWindow(desk.onTrace(1, 20)));
        QCOMPARE(heard.played.size(), 1); // not asked for
        desk.model.preferences()->setSoundFollows(true);
        desk.press(Qt::Key_End);
        const int last = int(data.real.size()) - 1;
        const auto tone = [&](int index) {
            return SmithChart::toneSamples(
                SmithChart::toneOf({data.real.at(index), data.imag.at(index)}),
                TraceSound::pointTime);
        };
        QCOMPARE(heard.played.size(), 2);
        QCOMPARE(heard.played.last(), tone(last));
        QTest::mouseMove(desk.window.windowHandle(), desk.inWindow(desk.onTrace(1, 40)));
        PanelDesk::settle();
        QCOMPARE(heard.played.size(), 3);
        desk.model.preferences()->setSoundFollows(false);
        desk.press(Qt::Key_Home);
        QCOMPARE(heard.played.size(), 3);
        QCOMPARE(heard.asked, 1);
    }

    void withoutAnOutput()
    {
        ChartDesk desk;
        TraceSound sound(&desk.model, desk.window.diagrams());
        sound.setOutput([] { return std::unique_ptr<SoundOutput>(); });
        QVERIFY(!sound.isAvailable());
        sound.toggleTrace();
        desk.model.preferences()->setSoundFollows(true);
        desk.press(Qt::Key_End);
        desk.show({});
        sound.toggleTrace();
    }
};

QTEST_MAIN(TraceSoundTest)
#include "tst_tracesound.moc"
