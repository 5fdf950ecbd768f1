// VoCc::FormBuilder: the entries of the list-like widgets through .ui text and back; the
// example form as the builder loads it and as uic compiles it.
#include "ui_allwidgets.h"
#include "pipeprobe.h"
#include "uixml.h"
#include "warninglog.h"

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QtDesigner/private/ui4_p.h>

#include <QtWidgets>
#include <QtTest>

using namespace VoCc;
using namespace CcTest;

namespace {

QString saveForm(QWidget *form)
{
    FormBuilder builder;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    builder.save(&buffer, form);
    return QString::fromUtf8(buffer.data());
}

QWidget *loadForm(const QString &uiText)
{
    FormBuilder builder;
    QBuffer buffer;
    buffer.setData(uiText.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    return builder.load(&buffer);
}

// The widget elements of a form document by name (the builder writes it as a property), nested
// ones and those in layouts included.
using Elements = QMap<QString, DomWidget *>;
void collectElements(DomWidget *element, Elements &elements)
{
    QString name = element->attributeName();
    for (const DomProperty *property : element->elementProperty()) {
        if (property->attributeName() == QLatin1String("objectName"))
            name = property->elementString()->text();
    }
    elements.insert(name, element);
    auto children = element->elementWidget();
    auto layouts = element->elementLayout();
    while (!layouts.isEmpty()) {
        for (DomLayoutItem *item : layouts.takeFirst()->elementItem()) {
            if (item->elementWidget())
                children << item->elementWidget();
            if (item->elementLayout())
                layouts << item->elementLayout();
        }
    }
    for (DomWidget *child : qAsConst(children))
        collectElements(child, elements);
}
Elements elementsOf(const QString &ui, DomUI *document)
{
    QXmlStreamReader reader(ui);
    reader.readNextStartElement();
    document->read(reader);
    Elements elements;
    collectElements(document->elementWidget(), elements);
    return elements;
}

// What the items of a widget element hold: per item, its string values by name. (Icon sets,
// the icons of a combo box, are Designer's to keep; the builder does not write them.)
QString itemsOf(const DomWidget *element)
{
    QStringList items;
    for (const DomItem *item : element->elementItem()) {
        QStringList values;
        for (const DomProperty *property : item->elementProperty()) {
            if (property->elementString())
                values.append(property->attributeName() + QLatin1Char('=')
                              + property->elementString()->text());
        }
        values.sort();
        items.append(values.join(QLatin1Char(',')));
    }
    return items.join(QLatin1Char('\n'));
}

// The warning of a value the builder leaves out of a form.
QString notKept(const QString &widget, const QString &what)
{
    return widget + QStringLiteral(": not kept from the form: ") + what;
}

struct PropertyReader : FormBuilder
{
    using QAbstractFormBuilder::toVariant;
};

// Checks that a form holds what the document says: each widget by name and class, the values
// of its properties, and a page group's pages in order. Compiled, it has no entries to check;
// reloaded, no dynamic properties (the builder writes those of the meta-object only).
enum Source { Loaded, Compiled, Reloaded };
void checkHolds(QWidget *form, const Elements &elements, Source source = Loaded)
{
    PropertyReader reader;
    for (auto it = elements.cbegin(); it != elements.cend(); ++it) {
        const QString name = it.key();
        DomWidget *element = it.value();
        QWidget *widget = form->objectName() == name ? form : form->findChild<QWidget *>(name);
        QVERIFY2(widget, qPrintable(name));
        QCOMPARE(QLatin1String(widget->metaObject()->className()), element->attributeClass());
        for (DomProperty *property : element->elementProperty()) {
            if (property->kind() == DomProperty::Rect || property->kind() == DomProperty::IconSet
                || (source == Compiled
                    && property->attributeName() == QLatin1String("checkedTexts"))
                || (source == Reloaded && property->attributeStdset() == 0))
                continue;
            const QVariant value = widget->property(qPrintable(property->attributeName()));
            // Qt 6 reads an enum property as its own type, the form's text as an int.
            if (property->kind() == DomProperty::Enum)
                QCOMPARE(value.toInt(), reader.toVariant(widget->metaObject(), property).toInt());
            else
                QCOMPARE(value, reader.toVariant(widget->metaObject(), property));
        }
        if (auto *group = qobject_cast<const DrawbackBoxGroup *>(widget)) {
            QCOMPARE(group->count(), element->elementWidget().size());
            for (int i = 0; i < group->count(); ++i) {
                QCOMPARE(group->widget(i)->objectName(),
                         element->elementWidget().at(i)->attributeName());
                QCOMPARE(group->pageTitle(i), group->widget(i)->windowTitle());
            }
        }
    }
}

} // namespace

class TestCcFormBuilder : public QObject
{
    Q_OBJECT

private slots:
    void exampleForm()
    {
        QFile file(QStringLiteral(CC_EXAMPLE_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString original = QString::fromUtf8(file.readAll());
        DomUI document;
        const Elements elements = elementsOf(original, &document);
        FormBuilder builder;
        file.seek(0);
        QScopedPointer<QWidget> form(builder.load(&file));
        QVERIFY(form);
        QVERIFY(builder.unknownClassNames().isEmpty());
        checkHolds(form.data(), elements);
        // Every class of the library is on it.
        QStringList classes;
        for (const DomWidget *element : elements)
            classes.append(element->attributeClass());
        for (const QString &name : FormBuilder::widgetClassNames())
            QVERIFY2(classes.contains(name), qPrintable(name));

        // Compiled by uic against the library's headers and API.
        VoCc::Form compiled;
        Ui::AllWidgets ui;
        ui.setupUi(&compiled);
        checkHolds(&compiled, elements, Compiled);

        // Saved by the builder, twice over: the same widgets, without the inner ones of a control
        // or the boxes of a page group, with the same entries (Qt writes the items of its item
        // views from the values Designer keeps only); loaded again, they hold the same.
        QScopedPointer<QWidget> loaded;
        for (int cycle = 0; cycle < 2; ++cycle) {
            const QString saved = saveForm(loaded ? loaded.data() : form.data());
            DomUI savedDocument;
            const Elements savedElements = elementsOf(saved, &savedDocument);
            QCOMPARE(savedElements.keys(), elements.keys());
            for (const QString &name : elements.keys()) {
                if (!form->findChild<QAbstractItemView *>(name))
                    QCOMPARE(itemsOf(savedElements.value(name)), itemsOf(elements.value(name)));
            }
            loaded.reset(loadForm(saved));
            checkHolds(loaded.data(), elements, Reloaded);
        }

        // Designer calls the save hook on an element it has already filled, and may do so for
        // every save of the form: the element comes out the same each time, also after loading
        // what was saved.
        for (QWidget *widget : loaded->findChildren<QWidget *>()) {
            DomWidget element;
            element.setAttributeClass(QString::fromLatin1(widget->metaObject()->className()));
            // The element's text after a call of the save hook.
            const auto saved = [&] {
                FormBuilder::saveExtraInfo(&element, widget, nullptr);
                QString text;
                QXmlStreamWriter writer(&text);
                element.write(writer);
                return text;
            };
            const QString once = saved();
            QCOMPARE(saved(), once);
            FormBuilder::loadExtraInfo(&element, widget, nullptr);
            QCOMPARE(saved(), once);
        }
    }

    void listsOfUnequalLength()
    {
        // Saved one item per entry (per text): shorter lists are padded, what a longer one holds
        // beyond the entries is left out. The current entry, set before the entries are loaded,
        // comes back.
        QWidget form;
        form.setObjectName(QStringLiteral("Form"));
        auto *options = new OptionRadios(&form);
        options->setTextList({QStringLiteral("One"), QString(), QStringLiteral("Three")});
        options->setIconList({QStringLiteral("ok.png"), QString(), QStringLiteral("/missing.png")});
        options->setToolTips({QStringLiteral("first")});
        options->setDataList({"1", "2", "3", "4"});
        options->setCurrentIndex(2);
        const QString saved = saveForm(&form);
        // Texts and tool tips are for translation, data are not.
        QVERIFY(saved.contains(QStringLiteral("<string notr=\"false\">One</string>")));
        QVERIFY(saved.contains(QStringLiteral("<string notr=\"true\">3</string>")));
        QVERIFY(!saved.contains(QStringLiteral("<string notr=\"true\">4</string>")));
        QScopedPointer<QWidget> loaded(loadForm(saved));
        auto *back = loaded->findChild<OptionRadios *>();
        const auto joined = [](const QStringList &list) { return list.join(QLatin1Char('|')); };
        QCOMPARE(QStringList({joined(back->textList()), joined(back->iconList()),
                              joined(back->toolTips()), joined(back->dataList())}),
                 QStringList({"One||Three", "ok.png||/missing.png", "first||", "1|2|3"}));
        QCOMPARE(back->currentIndex(), 2);
    }

    void badAndPartialDataLoadQuietly()
    {
        const QString textA = propertyXml("text", "A");
        const QString missingIcon = QStringLiteral(
                "<property name=\"icon\"><iconset><normaloff>/missing.png</normaloff>"
                "/missing.png</iconset></property>");
        // Unequal entries, an empty item, an unknown property, numbers for strings and an icon
        // that does not exist.
        QString body =
                widgetXml("VoCc::OptionButtons", "buttons",
                          itemXml(textA + propertyXml("colour", "red")
                                  + propertyXml("icon", "/no/such/icon.png"))
                                  + itemXml(QString()) + itemXml(propertyXml("data", "7", "number"))
                                  + itemXml(QStringLiteral("<property name=\"toolTip\"/>")));
        // A matrix larger than its entries.
        body += widgetXml("VoCc::MatrixCheckBoxes", "matrix",
                          propertyXml("row", "4", "number") + propertyXml("column", "4", "number")
                                  + itemXml(missingIcon));
        // A page group whose current page does not exist; pop buttons with a bad textList and
        // their texts in the items, as a hand may write them.
        body += widgetXml("VoCc::DrawbackBoxGroup", "group",
                          propertyXml("currentIndex", "5", "number")
                                  + widgetXml("QWidget", "page"));
        body += widgetXml(
                "VoCc::MatrixPopButtons", "pop",
                propertyXml("textList", "not a list") + itemXml(textA)
                        + itemXml(propertyXml("text", "B") + propertyXml("action", "doB")));
        body += widgetXml("VoCc::CheckableTextComboBox", "check",
                          itemXml(propertyXml("toolTip", "only a tip")));
        const WarningLog log;
        QScopedPointer<QWidget> form(loadForm(formXml(body)));
        QVERIFY(form);
        // What is left out is named in one warning per widget, with its values: the unknown
        // item property, the page that does not exist, the pop buttons'
        // first item text, which the text list already has. No storm.
        QCOMPARE(log.warnings,
                 QStringList({notKept("VoCc::OptionButtons \"buttons\"",
                                      "item 1 property \"colour\" value \"red\""),
                              notKept("VoCc::DrawbackBoxGroup \"group\"",
                                      "property \"currentIndex\" value \"5\" (it has 0)"),
                              notKept("VoCc::MatrixPopButtons \"pop\"",
                                      "item 1 property \"text\" value \"A\"")}));

        auto *buttons = form->findChild<OptionButtons *>();
        QCOMPARE(buttons->textList(), QStringList({"A", "", "", ""}));
        QCOMPARE(buttons->dataList().value(2), QStringLiteral("7"));
        QCOMPARE(buttons->iconList().value(0), QStringLiteral("/no/such/icon.png"));
        QVERIFY(buttons->button(0)->icon().isNull());
        QCOMPARE(buttons->toolTips(), (QStringList {QString(), QString(), QString(), QString()}));

        auto *matrix = form->findChild<MatrixCheckBoxes *>();
        QCOMPARE(matrix->buttonCount(), 16);
        QCOMPARE(matrix->iconList(), QStringList {QStringLiteral("/missing.png")});
        QCOMPARE(matrix->button(15)->text(), QString());

        auto *group = form->findChild<DrawbackBoxGroup *>();
        QCOMPARE(group->count(), 1);
        QCOMPARE(group->currentIndex(), 0);

        auto *pop = form->findChild<MatrixPopButtons *>();
        // A text list of one string is that string; an item's text fills an entry it leaves
        // empty.
        QCOMPARE(pop->textList(),
                 (QStringList {QStringLiteral("not a list"), QStringLiteral("B")}));
        QCOMPARE(pop->actionList(), (QStringList {QString(), QStringLiteral("doB")}));
        QCOMPARE(pop->buttonCount(), 4);

        auto *check = form->findChild<CheckableTextComboBox *>();
        QCOMPARE(check->itemTextList(), QStringList {QString()});
        QCOMPARE(check->toolTips(), QStringList {QStringLiteral("only a tip")});
    }

    void refusesWhatQtCannotManage_data()
    {
        // The <ui> element is the first level.
        const auto nested = [](int widgets) {
            return "<ui version=\"4.0\">"
                    + QByteArray("<widget class=\"QWidget\" name=\"w\">").repeated(widgets)
                    + QByteArray("</widget>").repeated(widgets) + "</ui>";
        };
        const auto sideBySide = [](const char *className, int widgets) {
            return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><widget class=\""
                    + QByteArray(className) + "\" name=\"holder\">"
                    + QByteArray("<widget class=\"QWidget\" name=\"w\"/>").repeated(widgets)
                    + "</widget></widget></ui>";
        };
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("problem"); // empty: the form loads
        QTest::newRow("nested 512 deep") << nested(511) << QString();
        QTest::newRow("nested 513 deep")
                << nested(512) << QStringLiteral("nested more than 512 levels deep");
        QTest::newRow("10,001 widgets side by side")
                << sideBySide("QWidget", 10001)
                << QStringLiteral("more than 10000 widgets side by side");
        QTest::newRow("10,001 pages") << sideBySide("VoCc::DrawbackBoxGroup", 10001) << QString();
        QByteArray nul("<ui version=\"4.0\">\n<widget class=\"QWidget\" name=\"F@rm\"/></ui>");
        QTest::newRow("NUL byte") << nul.replace('@', '\0')
                                  << QStringLiteral("line 2, column 32: a NUL byte");
    }

    void refusesWhatQtCannotManage()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, problem);
        FormBuilder builder;
        QBuffer buffer(&document);
        buffer.open(QIODevice::ReadOnly);
        if (!problem.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(problem));
        QScopedPointer<QWidget> form(builder.load(&buffer));
        QCOMPARE(form.isNull(), !problem.isEmpty());
        QVERIFY2(builder.errorString().contains(problem), qPrintable(builder.errorString()));
    }

    void limitsGridsNoEditorMakes_data()
    {
        QTest::addColumn<QString>("className");
        for (const char *className : {"VoCc::MatrixPushButtons", "VoCc::MatrixRadioButtons",
                                      "VoCc::MatrixCheckBoxes", "VoCc::MatrixPopButtons"})
            QTest::newRow(className) << QString::fromLatin1(className);
    }

    void limitsGridsNoEditorMakes()
    {
        // The editors offer 1 to 99 rows and columns; a form asking for more gets 99.
        QFETCH(QString, className);
        const QString body = widgetXml(qPrintable(className), "grid",
                                       propertyXml("row", "65536", "number")
                                               + propertyXml("column", "3", "number")
                                               + itemXml(propertyXml("text", "A")));
        const WarningLog log;
        QScopedPointer<QWidget> form(loadForm(formXml(body)));
        QVERIFY(form);
        QCOMPARE(log.warnings,
                 QStringList(className
                             + QStringLiteral(" \"grid\": property \"row\" is 65536, more than "
                                              "the 99 rows or columns a grid can have; limited "
                                              "to 99")));

        QWidget *grid = form->findChild<QWidget *>(QStringLiteral("grid"));
        const auto button = [grid](int index) -> QAbstractButton * {
            if (auto *matrix = qobject_cast<AbstractMatrixOptions *>(grid))
                return matrix->button(index);
            return qobject_cast<MatrixPopButtons *>(grid)->button(index);
        };
        QCOMPARE(grid->property("row").toInt(), 99);
        QVERIFY(button(99 * 3 - 1));
        QVERIFY(!button(99 * 3));
        QCOMPARE(button(0)->text(), QStringLiteral("A"));
        // Still editable: a size the editors offer is taken as it is.
        QVERIFY(grid->setProperty("row", 4));
        QVERIFY(button(4 * 3 - 1));
        QVERIFY(!button(4 * 3));
    }

    void iconPathsThatAreNoFiles_data()
    {
        QTest::addColumn<QString>("className");
        for (const char *className : {"VoCc::OptionButtons", "VoCc::OptionRadios",
                                      "VoCc::OptionComboBox", "VoCc::OptionCheckBox",
                                      "VoCc::MatrixPushButtons", "VoCc::MatrixPopButtons"})
            QTest::newRow(className) << QString::fromLatin1(className);
    }

    void iconPathsThatAreNoFiles()
    {
        // An icon path naming a FIFO, a device or a folder loads as no icon, quietly, and the
        // FIFO is never opened: a reader would wait for a writer that never comes.
        QFETCH(QString, className);
        const PipeProbe pipe;
        QVERIFY(!pipe.path.isEmpty());
        const QStringList paths = {pipe.path, QStringLiteral("/dev/zero"),
                                   QStringLiteral("/dev/null"), pipe.dir.path()};
        QString items;
        for (const QString &path : paths)
            items += itemXml(propertyXml("text", "A") + propertyXml("icon", qPrintable(path)));
        const QString grid = className.startsWith(QLatin1String("VoCc::Matrix"))
                ? propertyXml("row", "2", "number") + propertyXml("column", "2", "number")
                : QString();
        const QString body = widgetXml(qPrintable(className), "icons", grid + items);
        const WarningLog log;
        QScopedPointer<QWidget> form(loadForm(formXml(body)));
        QVERIFY(form);
        QCoreApplication::processEvents(); // a grid shows its cells from the event loop
        QVERIFY(!pipe.wasOpened());
        QCOMPARE(log.warnings, QStringList());
        const QString saved = saveForm(form.data());
        for (const QString &path : paths)
            QVERIFY2(saved.contains(QStringLiteral(">%1<").arg(path)), qPrintable(saved));
    }

    void qtIconPropertiesThatAreNoFiles()
    {
        // Qt's own icon and picture properties, of a widget, an item and an action, naming a
        // FIFO or a device: left out with a warning that names each, instead of a reader that
        // waits for ever (the FIFO) or reads without end (the device). A missing file only
        // gives no picture, without a word.
        const PipeProbe pipe;
        QVERIFY(!pipe.path.isEmpty());
        const auto icon = [](const char *property, const QString &path) {
            return QStringLiteral("<property name=\"%1\"><iconset><normaloff>%2</normaloff>"
                                  "</iconset></property>")
                    .arg(QLatin1String(property), path);
        };
        const QString body =
                widgetXml("VoCc::Pane", "pane", icon("windowIcon", pipe.path))
                + widgetXml("QListWidget", "list",
                            itemXml(propertyXml("text", "A")
                                    + icon("icon", QStringLiteral("/dev/zero"))))
                + widgetXml("QLabel", "label",
                            QStringLiteral("<property name=\"pixmap\"><pixmap>%1</pixmap>"
                                           "</property>")
                                    .arg(pipe.path))
                + widgetXml("VoCc::Pane", "kept", icon("windowIcon", QStringLiteral("missing.png")))
                + QStringLiteral("<action name=\"open\">%1</action>").arg(icon("icon", pipe.path));
        const WarningLog log;
        QScopedPointer<QWidget> form(loadForm(formXml(body)));
        QVERIFY(form);
        QVERIFY(!pipe.wasOpened());
        const auto noFile = [](const char *widget, const char *property, const QString &path) {
            return notKept(QLatin1String(widget),
                           QStringLiteral("%1 \"%2\" (no file: a pipe, device or socket)")
                                   .arg(QLatin1String(property), path));
        };
        // The loader makes the actions first.
        QCOMPARE(log.warnings,
                 QStringList({noFile("QAction \"open\"", "property \"icon\"", pipe.path),
                              noFile("VoCc::Pane \"pane\"", "property \"windowIcon\"", pipe.path),
                              noFile("QListWidget \"list\"", "item property \"icon\"",
                                     QStringLiteral("/dev/zero")),
                              noFile("QLabel \"label\"", "property \"pixmap\"", pipe.path)}));
    }

    void showsLongTextsCut()
    {
        // An entry keeps its whole text; widgets show 1,000 characters, its first 999 and an
        // ellipsis. A combo box's items are its entries, so their texts are shown cut, with
        // one warning, and saved whole.
        const QString longText = QString(5000, QLatin1Char('x'));
        const QString item = itemXml(propertyXml("text", qPrintable(longText)));
        const QString body = widgetXml("VoCc::OptionButtons", "options", item)
                + widgetXml("VoCc::ComboBox", "combo", item + item);
        const WarningLog log;
        QScopedPointer<QWidget> form(loadForm(formXml(body)));
        auto *options = form->findChild<OptionButtons *>();
        QCOMPARE(options->textList(), QStringList {longText});
        QCOMPARE(options->button(0)->text(), longText.left(999) + QChar(0x2026));
        QCOMPARE(form->findChild<ComboBox *>()->itemText(1).size(), 1000);
        QCOMPARE(log.warnings,
                 QStringList(QStringLiteral("VoCc::ComboBox \"combo\": property \"text\" of 2 "
                                            "item(s) has up to 5000 characters, more than the "
                                            "1000 a widget shows; shown cut to 1000, saved "
                                            "whole")));
    }
};

QTEST_MAIN(TestCcFormBuilder)
#include "tst_ccformbuilder.moc"
