// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
/*! \file
    From a tap to a value: one field, one adapter, one keypad.

    numeric-entry                 shows the field; tap it
    numeric-entry --grab FILE     draws the window with the open keypad into a PNG, and ends */
#include <controls/editablewidget.h>
#include <controls/scaledunitadapter.h>
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>

#include <QApplication>
#include <QDoubleValidator>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

/// A field on a page opens the keypad when it is tapped.
class FrequencyField : public Controls::EditableWidget
{
public:
    using EditableWidget::EditableWidget;

    void onFocus() override
    {
        EditableWidget::onFocus();
        keyboard()->open();
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Numeric entry"));
    window.resize(640, 480);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    window.setCentralWidget(page);

    // The keypad is the adapter's parent: a commit or Escape closes it.
    auto *keypad = new Controls::TouchNumKeyboard(&window);
    auto *adapter = new Controls::ScaledUnitAdapter({{QStringLiteral("GHz"), 1e9},
                                                     {QStringLiteral("MHz"), 1e6},
                                                     {QStringLiteral("kHz"), 1e3},
                                                     {QStringLiteral("Hz"), 1.0}},
                                                    keypad);
    adapter->setDecimals(9);
    adapter->setValidator(new QDoubleValidator(100e3, 8.5e9, 0, adapter));
    adapter->setRealValue(2.45e9);

    auto *field = new FrequencyField(keypad, adapter);
    field->setLabelText(QStringLiteral("Stop"));
    keypad->setWindowTitle(QStringLiteral("Stop"));
    keypad->setTitleWidget(new QLabel(QStringLiteral("100 kHz \u2026 8.5 GHz")), Qt::AlignRight);

    auto *entered = new QLabel(QStringLiteral("Tap the field."));
    QObject::connect(
        adapter, &Controls::ScaledUnitAdapter::editingFinished, entered, [entered](double hertz) {
            entered->setText(QStringLiteral("Stop frequency: %1 Hz").arg(hertz, 0, 'f', 0));
        });
    layout->addWidget(field);
    layout->addWidget(entered);
    layout->addStretch();
    window.show();

    const QStringList arguments = QApplication::arguments();
    const auto grab = arguments.indexOf(QStringLiteral("--grab"));
    if (grab > 0 && grab + 1 < arguments.size()) {
        window.activateWindow();
        field->setFocus();
        QTimer::singleShot(100, &window, [&window, file = arguments.at(grab + 1)] {
            const bool saved = window.grab().save(file);
            if (!saved)
                qWarning("numeric-entry: cannot write %s", qPrintable(file));
            QApplication::exit(saved ? 0 : 1);
        });
    }
    return QApplication::exec();
}
