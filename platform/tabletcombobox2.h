// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QComboBox>
#include <QStringList>

#include <memory>

namespace Profile
{

class IEnumProfileAdapter;

/*! A combo box bound to a value of a profile: the profile's changes show, choices are written back.

    Where the profile refuses a choice, the box returns to the profile's value. The adapter is not
    owned; when it goes, the entries stay and choices have no effect. Not for lists that the box's
    owner fills by hand: use a plain combo box for those.

    \code
    box->reset();
    box->setProfile(layouts);
    box->afterSetProfile();
    box->setIcons({QStringLiteral(":/Graph/Image/layout1"), QStringLiteral(":/Graph/Image/layout2")});
    \endcode

    Icons may be set before or after the entries. */
class VNAPLATFORM_EXPORT TabletComboBox2 : public QComboBox
{
    Q_OBJECT

public:
    /// An empty box, bound to nothing.
    explicit TabletComboBox2(QWidget *parent = nullptr);
    ~TabletComboBox2() override;

    /// Null before setProfile(), after reset() and when the adapter was deleted.
    IEnumProfileAdapter *profile() const;

    /// Lets go of the adapter and removes the entries; icons stay known.
    void reset();
    /// Makes \a adapter (may be null) the source of entries and value; shown by afterSetProfile().
    void setProfile(IEnumProfileAdapter *adapter);
    /// Fills in the adapter's entries and shows the profile's value; call again when entries
    /// change.
    void afterSetProfile();
    /// Files or resources of the entries' icons in entry order; entries beyond the list have none.
    void setIcons(const QList<QString> &paths);

private:
    void showCurrent();
    void applyIcons();
    void writeBack(int index);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Profile
