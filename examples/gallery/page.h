// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#pragma once

#include <QFrame>
#include <QPointer>
#include <QScrollArea>
#include <QVector>

#include <functional>

class QHBoxLayout;
class QVBoxLayout;

namespace Gallery
{

/// A text of a page, translated.
inline QString tr(const char *text)
{
    return QObject::tr(text);
}

/// One widget of the library: its name, what it is for, and samples of it, each with a caption.
class Section : public QFrame
{
    Q_OBJECT

public:
    /// \a id names the picture of the section: lower case, without a suffix.
    Section(const QString &id, const QString &title, const QString &purpose);

    QString id() const { return m_id; }

    /// The sample that has the keyboard focus in the section's picture, or null.
    QWidget *focusSample() const { return m_focusSample; }
    void setFocusSample(QWidget *sample) { m_focusSample = sample; }

    /// Puts samples into a state that only the picture shows, and back when called again.
    void togglePose() const
    {
        if (m_pose)
            m_pose();
    }
    void setPose(const std::function<void()> &pose) { m_pose = pose; }

    /// Adds a sample to the current row; an empty size means the size that the sample asks for.
    void add(QWidget *sample, const QString &caption, const QSize &size = QSize());
    /// Lets further samples stand below.
    void addRow();

private:
    QString m_id;
    QVBoxLayout *m_rows;
    QHBoxLayout *m_row = nullptr;
    QPointer<QWidget> m_focusSample;
    std::function<void()> m_pose;
};

/// A tab of the gallery: the sections of one family, one below the other or side by side.
class Page : public QScrollArea
{
    Q_OBJECT

public:
    explicit Page(const QString &title);

    QString title() const { return m_title; }
    const QVector<Section *> &sections() const { return m_sections; }

    void add(Section *section);
    void addBeside(Section *section);

Q_SIGNALS:
    /// A widget of the page told something.
    void told(const QString &what);

private:
    QString m_title;
    QVBoxLayout *m_rows;
    QHBoxLayout *m_row = nullptr;
    QVector<Section *> m_sections;
};

} // namespace Gallery
