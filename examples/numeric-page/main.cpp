// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
/*! \file
    A page of numeric fields from a .ui file: an L match of a load to 50 ohms. Units, ranges and
    steps stand in the form; here is what the page computes.

    numeric-page                 shows the page
    numeric-page --grab FILE     draws it, the keypad open, into a PNG, and ends */
#include "ui_page.h"

#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>
#include <platform/translator.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double source = 50.0; ///< ohms
constexpr double twoPi = 6.283185307179586;

/// The parts that match the load at the frequency.
void match(const Ui::MatchPage &page)
{
    const double q = std::sqrt(page.load->value() / source - 1.0);
    const double omega = twoPi * page.frequency->value();
    page.capacitance->setValue(q / (omega * page.load->value()));
    page.inductance->setValue(q * source / omega);
    page.message->setText(QStringLiteral("Q %1").arg(q, 0, 'f', 2));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Utils::Translator::instance()->setLanguage(QLocale(QLocale::English));
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);

    QDialog window; // any window will do
    Ui::MatchPage page;
    page.setupUi(&window);
    window.resize(520, 520);
    match(page);
    using Controls::NumericField;
    for (NumericField *field : {page.frequency, page.load}) {
        QObject::connect(field, &NumericField::valueEntered, &window, [&page] { match(page); });
        QObject::connect(field, &NumericField::valueClamped, &window, [&page](double entered) {
            page.message->setText(QStringLiteral("%1 is out of range.").arg(entered));
        });
        field->keypad()->setDimEnabled(true);
    }
    // The other way around: a capacitor that is at hand gives the load it matches.
    QObject::connect(page.capacitance, &NumericField::valueEntered, &window, [&page](double farad) {
        const double b = twoPi * page.frequency->value() * farad;
        // Solved for r from b = sqrt(r / source - 1) / r, the larger of two loads.
        const double root = std::max(0.0, 1.0 - 4.0 * b * b * source * source);
        page.load->setValue((1.0 + std::sqrt(root)) / (2.0 * b * b * source));
        match(page);
    });
    window.show();

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--grab")) {
        page.frequency->openKeypad();
        QTimer::singleShot(100, &window, [&window, file = arguments.at(2)] {
            QApplication::exit(window.grab().save(file) ? 0 : 1);
        });
    }
    return QApplication::exec();
}
