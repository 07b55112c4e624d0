// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <widgets/labelbutton.h>
#include <widgets/popupwidget.h>

#include <QList>
#include <QListView>

#include <memory>

/*! A button for a setting with a fixed set of values: it shows the current choice, and a tap opens
    the list of all of them, as rows below (or above) it or as tiles in the middle of the window.

    Not for commands: MenuButton remembers nothing.

    \code
    auto *format = new EnumTextButton(this);
    format->setText(tr("Format"));
    format->setEnums({{LogM, tr("Log mag")}, {Phase, tr("Phase")}, {Smith, tr("R + jX")}});
    format->setCurrentEnum(LogM);
    connect(format, &EnumTextButton::currentItemEdited, this, &Panel::setFormat);
    \endcode

    Style hooks are those of LabelButton and PopupWidget. A tap that closes the list never opens it
    again. */
class VNAWIDGETS_EXPORT EnumTextButton : public LabelButton
{
    Q_OBJECT

    Q_PROPERTY(int currentValue READ currentValue WRITE setCurrentEnum NOTIFY currentItemToggled)

public:
    /// One choice: what it means to the host, and what the user reads.
    struct EnumSpec {
        int value; ///<what it means to the host
        QString text; ///<what the user reads

        friend bool operator==(const EnumSpec &a, const EnumSpec &b)
        {
            return a.value == b.value && a.text == b.text;
        }
        friend bool operator!=(const EnumSpec &a, const EnumSpec &b) { return !(a == b); }
    };

    /// A button without choices.
    explicit EnumTextButton(QWidget *parent = nullptr);
    ~EnumTextButton() override;

    /// The choices in display order. Setting them leaves the current choice as it is.
    QList<EnumSpec> enums() const;
    /// Sets the choices.
    void setEnums(const QList<EnumSpec> &enums);

    /// Value 0 and no text until something is chosen.
    EnumSpec currentEnumSpec() const;
    /// The value of the current choice; 0 at first.
    int currentValue() const;
    /// Shows any value and text, also one that is not in the list. False when it is shown already.
    bool setCurrentEnum(const EnumSpec &spec);
    /// Shows the first choice of that value, and tells so even when it was shown already. False,
    /// and nothing changes, when there is none.
    bool setCurrentEnum(int value);

    /// \name The list, see PopupWidget
    ///@{

    /// Size of a tile in pixels. Default: 120 x 100.
    void setIconSize(int width, int height);
    /// See setIconSize().
    QSize iconSize() const;
    /// Columns of tiles. Default: 4.
    void setItemCountPerRow(int count);
    /// See setItemCountPerRow().
    int itemCountPerRow() const;
    /// Enables or disables the first choice of this text.
    void setItemEnabled(const QString &text, bool enabled);
    /// Enables or disables the choice at an index.
    void setItemEnabled(int index, bool enabled);
    /// Sets the title, and shows it.
    void setTitleText(const QString &text);
    /// The title of the list; empty at first.
    QString titleText() const;
    /// Sets titleVisible().
    void setTitleVisible(bool visible);
    /// Whether the title is shown. Default: false.
    bool titleVisible() const;
    /// Rows (QListView::ListMode, the default) or tiles.
    void setViewMode(QListView::ViewMode mode);
    ///@}

    /// Whether a list taller than its screen scrolls inside; see PopupWidget. Default: false.
    bool listScrollsInside() const;
    /// Sets listScrollsInside().
    void setListScrollsInside(bool scrolls);

public Q_SLOTS:
    /// Opens the list, unless it was this tap that closed it or there is nothing to choose.
    void onClicked(bool checked);
    /// Takes over what the user picked.
    void onPopupWidgetItemChanged(const QString &text);
    /// Marks the current choice in the list.
    void onCurrentItemToggled(int value);
    /// Moves the list to its place: at the button for rows, centred on the window for tiles.
    void updatePopupPosition();

Q_SIGNALS:
    /// The user picked a choice; follows currentItemToggled().
    void currentItemEdited(int value);
    /// The current choice was set, by the user or by the host.
    void currentItemToggled(int value);

protected:
    /// A button without choices whose list is made at \a creation.
    EnumTextButton(ListCreation creation, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
