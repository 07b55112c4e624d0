// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/ienumprofileadapter.h>

#include <QPointer>
#include <QVector>

#include <functional>

namespace Profile
{

/*! The list view of one enumeration \a T in a profile object.

    The profile needs a getter, a setter and a signal for the value. It may be null or die first:
    there is then no current entry, and choices are dropped.

    \code
    using Layouts = Profile::EnumProfileAdapter<Graph::LayoutType>;
    auto *adapter = new Layouts({{Graph::LayoutType::Single, tr("One diagram")},
                                 {Graph::LayoutType::Quad, tr("Four diagrams")}},
                                profile, &Graph::LayoutManagerProifle::layoutType,
                                &Graph::LayoutManagerProifle::setLayoutType,
                                &Graph::LayoutManagerProifle::layoutTypeChanged, this);
    comboBox->setProfile(adapter);
    \endcode */
template<typename T>
class EnumProfileAdapter : public IEnumProfileAdapter
{
public:
    /// One choice.
    struct Entry {
        T value; ///<what it means to the profile
        QString text; ///<what the user reads
    };

    template<typename P>
    /// Binds \a entries to a value of \a profile by its getter, setter and change signal.
    EnumProfileAdapter(const QVector<Entry> &entries, P *profile, T (P::*value)() const,
                       void (P::*setValue)(T), void (P::*valueChanged)(T),
                       QObject *parent = nullptr)
        : IEnumProfileAdapter(parent)
        , m_entries(entries)
        , m_profile(profile)
        , m_value([profile, value] { return (profile->*value)(); })
        , m_setValue([profile, setValue](T wanted) { (profile->*setValue)(wanted); })
    {
        if (profile) {
            connect(profile, valueChanged, this, &IEnumProfileAdapter::changed);
            connect(profile, &QObject::destroyed, this, &IEnumProfileAdapter::changed);
        }
    }

    int count() const override { return int(m_entries.size()); }

    QString text(int index) const override
    {
        return isEntry(index) ? m_entries.at(index).text : QString();
    }

    int currentIndex() const override
    {
        if (!m_profile)
            return -1;
        const T value = m_value();
        for (int index = 0; index < count(); ++index) {
            if (m_entries.at(index).value == value)
                return index;
        }
        return -1;
    }

    void setCurrentIndex(int index) override
    {
        if (m_profile && isEntry(index))
            m_setValue(m_entries.at(index).value);
    }

private:
    bool isEntry(int index) const { return index >= 0 && index < count(); }

    QVector<Entry> m_entries;
    QPointer<QObject> m_profile;
    std::function<T()> m_value;
    std::function<void(T)> m_setValue;
};

} // namespace Profile
