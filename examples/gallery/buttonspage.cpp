// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"
#include "pages.h"

#include <widgets/enumtextbutton.h>
#include <widgets/menubutton.h>
#include <widgets/switchbutton.h>

#include <QProgressBar>
#include <QVBoxLayout>

namespace Gallery
{

namespace
{

constexpr QSize s_key(150, 84);
constexpr QSize s_plain(120, 44);

template<typename Button>
Button *report(Page *page, Button *button, const QString &name)
{
    QObject::connect(button, &Button::clicked, page,
                     [page, name] { Q_EMIT page->told(name + tr(": clicked")); });
    return button;
}

/// The value font of a soft key: larger than the name's.
QFont valueFont()
{
    QFont font;
    font.setPixelSize(16);
    return font;
}

template<typename Button = LabelButton>
Button *softKey(const char *name, const QString &value = QString())
{
    auto *const button = new Button;
    button->setText(tr(name));
    button->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
    button->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    button->setLabelFont(valueFont());
    button->setLabelText(value);
    return button;
}

Section *abstractButtons(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("abstractbutton"), QStringLiteral("AbstractButton"),
                    tr("A push button that can be inert without looking disabled."));
    const auto add = [page, section](const char *caption) {
        auto *const button = report(page, new AbstractButton, QStringLiteral("AbstractButton"));
        button->setText(tr("Preset"));
        section->add(button, tr(caption), s_plain);
        return button;
    };
    add("normal");
    section->setFocusSample(add("with the focus"));
    add("pressed")->setDown(true);
    AbstractButton *const checked = add("checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    add("disabled")->setEnabled(false);
    add("not clickable")->setClickable(false);
    return section;
}

Section *infoButtons(Page *page)
{
    auto *const section = new Section(QStringLiteral("infobutton"), QStringLiteral("InfoButton"),
                                      tr("A name, and any widget that tells something about it."));
    const auto add = [page, section](InfoButton::LayoutType type, const char *caption) {
        auto *const button = report(page, new InfoButton, QStringLiteral("InfoButton"));
        auto *const progress = new QProgressBar;
        progress->setRange(0, 16);
        progress->setValue(11);
        progress->setFormat(QStringLiteral("%v / %m"));
        progress->setFixedSize(110, 22);
        auto *const frame = new QWidget;
        auto *const layout = new QVBoxLayout(frame);
        layout->setContentsMargins(10, 0, 10, 0);
        layout->addWidget(progress);
        frame->setAttribute(Qt::WA_TransparentForMouseEvents);
        button->setText(tr("Averaging"));
        button->setInfoWidget(frame);
        button->setLayoutType(type);
        section->add(button, tr(caption),
                     type == InfoButton::TopBottom || type == InfoButton::BottomTop
                         ? QSize(134, 84)
                         : QSize(240, 44));
    };
    add(InfoButton::TopBottom, "TopBottom");
    add(InfoButton::BottomTop, "BottomTop");
    add(InfoButton::LeftRight, "LeftRight");
    add(InfoButton::RightLeft, "RightLeft");
    return section;
}

Section *labelButtons(Page *page)
{
    auto *const section = new Section(
        QStringLiteral("labelbutton"), QStringLiteral("LabelButton"),
        tr("A name and a value; of a value that is too long, the end with its unit stays."));
    const auto add = [page, section](const char *caption, const char *name, const char *value) {
        LabelButton *const button = report(page, softKey(name, QString::fromUtf8(value)), tr(name));
        section->add(button, tr(caption), s_key);
        return button;
    };
    add("normal", "Start", "2.000 GHz");
    section->setFocusSample(add("with the focus", "Stop", "2.900 GHz"));
    add("pressed", "Points", "1601")->setDown(true);
    LabelButton *const checked = add("checked", "Marker", "M1 \u00b7 2.412 GHz");
    checked->setCheckable(true);
    checked->setChecked(true);
    add("disabled", "Power", "\u221210 dBm")->setEnabled(false);
    section->addRow();
    add("too long", "Marker", "2.412 345 678 901 GHz");
    LabelButton *const wrapped = add("\"multilineLabel\"", "Trigger", "External, rising edge");
    wrapped->setProperty("multilineLabel", true);
    QFont small;
    small.setPixelSize(13);
    wrapped->setLabelFont(small);
    LabelButton *const beside = add("LeftRight", "IF bandwidth", "10 kHz");
    beside->setLayoutType(InfoButton::LeftRight);
    beside->setFixedSize(240, 52);
    beside->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    beside->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return section;
}

Section *choiceButtons(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("enumtextbutton"), QStringLiteral("EnumTextButton"),
                    tr("A setting with a fixed set of values; a tap opens the list of them."));
    const auto add = [page, section](const char *caption) {
        auto *const button = softKey<EnumTextButton>("Format");
        button->setEnums({{0, tr("Log mag")},
                          {1, tr("Phase")},
                          {2, tr("Group delay")},
                          {3, tr("SWR")},
                          {4, tr("R + jX")}});
        button->setItemEnabled(2, false);
        button->setCurrentEnum(4);
        QObject::connect(button, &EnumTextButton::currentItemEdited, page, [page](int value) {
            Q_EMIT page->told(QStringLiteral("EnumTextButton: currentItemEdited(%1)").arg(value));
        });
        section->add(button, tr(caption), s_key);
        return button;
    };
    add("rows");
    EnumTextButton *const tiles = add("tiles");
    tiles->setViewMode(QListView::IconMode);
    tiles->setItemCountPerRow(3);
    tiles->setTitleText(tr("Format"));
    add("disabled")->setEnabled(false);
    return section;
}

Section *menuButtons(Page *page)
{
    auto *const section = new Section(QStringLiteral("menubutton"), QStringLiteral("MenuButton"),
                                      tr("A menu of commands; it remembers nothing."));
    const auto add = [page, section](const char *caption) {
        auto *const button = new MenuButton(tr("Search"));
        button->setMenuItems(
            {{0, tr("Maximum")}, {1, tr("Minimum")}, {2, tr("Next peak")}, {3, tr("\u22123 dB")}});
        QObject::connect(button, qOverload<const QString &>(&MenuButton::menuItemClicked), page,
                         [page](const QString &text) {
                             Q_EMIT page->told(
                                 QStringLiteral("MenuButton: menuItemClicked(\"%1\")").arg(text));
                         });
        section->add(button, tr(caption), s_key);
        return button;
    };
    add("closed");
    add("open")->setChecked(true);
    add("disabled")->setEnabled(false);
    return section;
}

Section *switchButtons(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("switchbutton"), QStringLiteral("SwitchButton"),
                    tr("A setting that is on or off."));
    const auto add = [page, section](const char *caption, bool on) {
        auto *const button = new SwitchButton;
        button->setText(tr("Sweep"));
        button->setStatus(on);
        QObject::connect(button, &SwitchButton::statusChanged, page, [page](bool state) {
            Q_EMIT page->told(QStringLiteral("SwitchButton: statusChanged(%1)")
                                  .arg(state ? QStringLiteral("true") : QStringLiteral("false")));
        });
        section->add(button, tr(caption), QSize(240, 56));
        return button;
    };
    add("off", false);
    add("on", true);
    add("disabled", true)->setEnabled(false);
    SwitchButton *const below = add("TopBottom", true);
    below->setLayoutType(InfoButton::TopBottom);
    below->setFixedSize(s_key);
    return section;
}

} // namespace

Page *createButtonsPage()
{
    auto *const page = new Page(tr("Buttons"));
    page->add(abstractButtons(page));
    page->add(infoButtons(page));
    page->add(labelButtons(page));
    page->add(choiceButtons(page));
    page->addBeside(menuButtons(page));
    page->add(switchButtons(page));
    return page;
}

} // namespace Gallery
