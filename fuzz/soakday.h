// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkeypanel.h"

#include <panel/files/statekeeper.h>
#include <panel/source/progressivesweep.h>

class Double;

namespace Soak
{

/*! A panel at work: it shows sweeps all the time, and every hour all that people do at an instrument
    is done to it once. What did not come about as it should is told by takeBroken(). */
class Day
{
public:
    /// So many frames make an hour.
    Day(std::uint64_t seed, int frames);
    ~Day();

    /// Afterwards the panel shows what it showed before the hour.
    void playHour();
    /// Saves the state and starts a panel from it, in each language.
    void restart();
    QStringList takeBroken();

    /// Processor time of each frame of the last hour, in milliseconds.
    const QVector<double> &costs() const { return m_costs; }
    /// Diagrams drawn for each frame of the last hour.
    double drawn() const { return m_costs.isEmpty() ? 0.0 : double(m_drawn) / int(m_costs.size()); }
    /// Sweeps that came from the panel's own simulation and over the link in the last hour.
    int delivered() const { return m_delivered; }

private:
    /// Something that is done, goes on for some frames, and ends.
    struct Deed {
        const char *name;
        void (Day::*begin)();
        void (Day::*end)();
    };
    static const Deed deeds[];
    /// How long anything may take, in milliseconds.
    static constexpr int patience = 30000;

    void none() { }
    void openFiles();
    void toggleTheme();
    void speakAnother();
    void speakEnglish();
    void keepSetup();
    void recallSetup();
    void loseLink();
    void showSettings();
    void showFiles();
    void showInstruments();
    void pressEscape();
    void openKeypad();
    void enterNumber();
    void exportAll();
    void shrink();
    void restoreSize();
    void hide();
    void minimise();
    void show();
    void lock();
    void setMarkers();
    void undoMarkers();
    void addTraces();
    void removeTraces();
    void sweepByItself();
    void askAsScript();
    void playAround();

    void adopt();
    void measure();
    void makeStandard();
    void closeAll();
    void playFrames(int count);
    void changeFile(const QString &path, int index);
    bool awaitSweeps(int count);
    bool isOpen() const;
    void press(Qt::Key key);
    void expect(bool holds, const char *what);
    template<typename Condition>
    void await(Condition condition, const char *what)
    {
        expect(QTest::qWaitFor(condition, patience), what);
    }

    Panel::PanelModel *model() { return m_desk.model(); }
    Panel::PanelWindow *window() const { return m_desk.window(); }

    Monkey::Files m_files;
    Monkey::Desk m_desk;
    quint64 m_seed;
    std::unique_ptr<Panel::StateKeeper> m_keeper;
    std::unique_ptr<Panel::ProgressiveSweep> m_sweep;
    std::unique_ptr<Double> m_instrument;
    QString m_place; ///< where it answers scripts
    QString m_address; ///< of the instrument
    QString m_standard; ///< file of the state that each hour ends with
    const char *m_deed = "";
    int m_frames;
    int m_hour = 0;
    int m_drawn = 0;
    int m_delivered = 0;
    QVector<double> m_costs;
    QStringList m_broken;
};

} // namespace Soak
