// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QObject>
#include <QString>

namespace Profile
{

/*! A setting with a fixed set of values, seen as a list with a current entry.

    Widgets that offer a choice talk to this and need not know the setting's type. Use
    EnumProfileAdapter to make one for a profile; derive only for settings that are no enumeration.
 */
class VNAPLATFORM_EXPORT IEnumProfileAdapter : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a parent.
    explicit IEnumProfileAdapter(QObject *parent = nullptr);
    ~IEnumProfileAdapter() override;

    /// How many values there are to choose from.
    virtual int count() const = 0;
    /// The words for value \a index, 0 to count() - 1; may be empty where an icon says it.
    virtual QString text(int index) const = 0;
    /// The entry of the profile's value; -1 when it is none of the entries or the profile is gone.
    virtual int currentIndex() const = 0;
    /// Writes the value of entry \a index into the profile; ignored outside 0 to count() - 1.
    virtual void setCurrentIndex(int index) = 0;

Q_SIGNALS:
    /// The profile's value changed, by whomever; ask currentIndex().
    void changed();
};

} // namespace Profile
