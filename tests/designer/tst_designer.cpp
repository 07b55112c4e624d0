// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui_gallery.h"

#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <vnatest.h>

#include <memory>

using namespace VnaTest;

class tst_Designer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QPluginLoader plugin(QStringLiteral(VNA_DESIGNER_PLUGIN));
        auto *const collection =
            qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
        QVERIFY2(collection, qUtf8Printable(plugin.errorString()));
        m_widgets = collection->customWidgets();
        QCOMPARE(int(m_widgets.size()), 20);
    }

    void widgets_data()
    {
        columns<int>("index");
        for (int i = 0; i < int(m_widgets.size()); ++i)
            QTest::newRow(qPrintable(m_widgets.at(i)->name())) << i;
    }

    void widgets()
    {
        QFETCH(int, index);
        QDesignerCustomWidgetInterface *const entry = m_widgets.at(index);
        QVERIFY(!entry->toolTip().isEmpty());
        QVERIFY(entry->whatsThis().contains(entry->name()));
        const QImage icon = entry->icon().pixmap(22, 22).toImage();
        QVERIFY2(!icon.isNull() && icon != QImage(icon.size(), icon.format()), "no icon");

        QString header = entry->includeFile();
        QVERIFY(header.startsWith(QLatin1Char('<')) && header.endsWith(QLatin1Char('>')));
        header = header.mid(1, header.size() - 2);
        bool found = false;
        const QStringList folders = QString::fromUtf8(VNA_INCLUDE_DIRS).split(QLatin1Char('|'));
        for (const QString &folder : folders)
            found = found || QFileInfo::exists(folder + QLatin1Char('/') + header);
        QVERIFY2(found, qPrintable(header));

        QWidget parent;
        std::unique_ptr<QWidget> widget(entry->createWidget(&parent));
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), entry->name());
        if (entry->group().isEmpty()) {
            QVERIFY2(entry->domXml().isEmpty(), "offered for a form, but in no group");
            return;
        }
        // A dropped widget must not be smaller than it can be, and every property in the XML must
        // be one.
        QSize size;
        QXmlStreamReader xml(entry->domXml());
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            const QString element = xml.name().toString();
            const auto attribute = [&xml](const char *name) {
                return xml.attributes().value(QLatin1String(name)).toString();
            };
            if (element == "widget"_s)
                QCOMPARE(attribute("class"), entry->name());
            else if (element == "property"_s)
                QVERIFY(widget->property(qPrintable(attribute("name"))).isValid());
            else if (element == "width"_s)
                size.setWidth(xml.readElementText().toInt());
            else if (element == "height"_s)
                size.setHeight(xml.readElementText().toInt());
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QCOMPARE(size.expandedTo(widget->minimumSizeHint()), size);
    }

    // Every offered widget stands in the form; loaded and compiled, it is the same.
    void galleryForm()
    {
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(QStringLiteral(VNA_DESIGNER_PLUGIN)).path());
        QFile file(QStringLiteral(VNA_DESIGNER_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> loaded(loader.load(&file));
        QVERIFY2(loaded, qPrintable(loader.errorString()));

        QWidget compiled;
        Ui::Gallery form;
        form.setupUi(&compiled);
        for (QDesignerCustomWidgetInterface *entry : qAsConst(m_widgets)) {
            if (entry->group().isEmpty())
                continue;
            QWidget *twins[2] = {nullptr, nullptr};
            int side = 0;
            for (const QWidget *window : {loaded.get(), static_cast<QWidget *>(&compiled)}) {
                const auto children = window->findChildren<QWidget *>();
                for (QWidget *child : children) {
                    if (QLatin1String(child->metaObject()->className()) == entry->name())
                        twins[side] = child;
                }
                QVERIFY2(twins[side], qPrintable(entry->name()));
                ++side;
            }
            if (auto *const button = qobject_cast<InfoButton *>(twins[0])) {
                button->ensurePolished();
                QCOMPARE(button->text(), qobject_cast<InfoButton *>(twins[1])->text());
                QVERIFY(!button->text().isEmpty());
            }
            for (const char *property : {"objectName", "labelText", "clickable", "currentText"})
                QCOMPARE(twins[0]->property(property), twins[1]->property(property));
        }
        auto *const key = loaded->findChild<LabelButton *>("marker"_s);
        QVERIFY(key);
        QCOMPARE(key->labelText(), "2.412 GHz"_s);
        QCOMPARE(key->labelAlignment(), Qt::AlignRight | Qt::AlignTop);
        QVERIFY(key->property("textMargins").isValid());
        QVERIFY(!loaded->findChild<AbstractButton *>("preset"_s)->clickable());
    }

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

QTEST_MAIN(tst_Designer)
#include "tst_designer.moc"
