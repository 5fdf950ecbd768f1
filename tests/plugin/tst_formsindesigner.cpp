// The module loaded into a real Designer core: one collection, the 44 plug-ins in order, each
// with the widget box entry it offers. The plug-ins at work on forms: their slots, driven by
// the Designer signals they listen to; the page group as a multi-page container, driven by
// Designer's own page commands; and the extra-info extension that every widget gets, whose
// save and load hand each widget's entries to the library's form builder. The example form
// comes back whole, without growing; forms a hand or another tool wrote, loadable but odd,
// keep what they hold, or a warning says what is left out.

#include "designertestcore.h"
#include "formroundtrip.h"
#include "formvalues.h"
#include "linguistmessages.h"
#include "pagegroup.h"
#include "uixml.h"
#include "warninglog.h"

#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QExtensionFactory>
#include <QtDesigner>
#include <QtTest>
#include <QtCore/private/qobject_p.h>
#include <QtDesigner/private/qdesigner_command_p.h>
#include <QtDesigner/private/qtresourcemodel_p.h>
#include <QtDesigner/private/shared_enums_p.h>

using namespace qdesigner_internal;
using namespace CcTest;

namespace {

// The plug-ins in the collection's order, as the widget box lists them: the class names after
// "VoCc::". That the include files and container flags are right shows in the example form's
// round trip, which saves them with the form.
const QStringList widgetNames = QStringLiteral(
        "Angle CmdButton Color ColorTransfer Distance Entity EntityList PinEntity PinEntityList "
        "FormProxy Number OptionButtons OptionCheckBox OptionComboBox OptionRadios Point Slider "
        "String Window CheckableTextComboBox ColorButton ColorPanel ColorPicker ComboBox "
        "DrawbackBoxGroup Form Line LineEditBtn LineEditEx LineType LineWidth ListView ListWidget "
        "MatrixCheckBoxes MatrixPopButtons MatrixPushButtons MatrixRadioButtons Pane "
        "RealNumberEdit RealNumberSlider SelectList TableWidget TextEdit TreeView")
        .split(QLatin1Char(' '));
const int widgetCount = int(widgetNames.size());

// Counts the slot calls that reach one object, through Qt's signal-spy hooks: the repaints
// a plug-in asks for are merged by Qt, so only its slot runs can be counted.
QObject *countedObject = nullptr;
int slotCalls = 0;
void countSlot(QObject *caller, int, void **)
{
    if (caller == countedObject)
        ++slotCalls;
}

class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

// A form holding a page group with the given pages, declared as Designer's widget box does.
QString groupForm(const QString &pages)
{
    return formXml(widgetXml("VoCc::DrawbackBoxGroup", "group", pages), pageGroupDeclaration());
}

QString page(const char *name, const QString &inner = QString())
{
    return widgetXml("QWidget", name, inner);
}

// A string property marked as a form author marks one for translation.
QString markedProperty(const char *name, const char *text, const char *attributes)
{
    return QStringLiteral("<property name=\"%1\"><string %2>%3</string></property>")
            .arg(QLatin1String(name), QLatin1String(attributes), QLatin1String(text));
}

// Every list family with texts and tool tips marked every way the format allows: a
// disambiguation, a translator's comment, an id, not to be translated.
QString markedEntries()
{
    const auto marked = [](const char *name, const char *text, const char *id) {
        const QString attributes =
                QStringLiteral("comment=\"menu\" extracomment=\"note\" id=\"cc.%1\"")
                        .arg(QLatin1String(id));
        return markedProperty(name, text, qPrintable(attributes));
    };
    const QString untranslated = markedProperty("toolTip", "tip code", "notr=\"true\"");
    const QString options = itemXml(marked("text", "Alpha", "alpha") + untranslated)
            + itemXml(markedProperty("text", "Beta", "notr=\"true\"")
                      + marked("toolTip", "Beta tip", "beta.tip"));
    const QString grid = propertyXml("row", "1", "number") + propertyXml("column", "2", "number");
    QString body;
    for (const char *className :
         {"VoCc::OptionButtons", "VoCc::OptionRadios", "VoCc::CheckableTextComboBox"})
        body += widgetXml(className, className + 6, options);
    body += widgetXml("VoCc::OptionComboBox", "optionCombo",
                      itemXml(marked("text", "Gamma", "gamma")));
    body += widgetXml("VoCc::ComboBox", "combo", itemXml(marked("text", "Delta", "delta")));
    body += widgetXml("VoCc::MatrixPushButtons", "matrix", grid + options);
    body += widgetXml("VoCc::MatrixPopButtons", "popButtons",
                      grid
                              + QStringLiteral("<property name=\"textList\"><stringlist "
                                               "comment=\"menu\" extracomment=\"grid\"><string>"
                                               "One</string><string>Two</string></stringlist>"
                                               "</property>")
                              + itemXml(untranslated));
    body += widgetXml("VoCc::DrawbackBoxGroup", "group",
                      page("page", marked("windowTitle", "Page title", "page")));
    return formXml(body, pageGroupDeclaration());
}

QString stringsXml(const char *name, const QStringList &strings)
{
    return QStringLiteral("<property name=\"%1\"><stringlist><string>%2</string></stringlist>"
                          "</property>")
            .arg(QLatin1String(name), strings.join(QLatin1String("</string><string>")));
}

// A row of everyValueKeptOrNamed: a form of one widget of the class holding inner.
void formOf(const char *row, const char *className, const QString &inner)
{
    QTest::newRow(row) << formXml(widgetXml(className, "odd", inner), pageGroupDeclaration());
}

// A row of keptOrSaid: a widget of the class holding inner, what the saved form must still
// hold (nothing asked when empty), and the one warning loading and saving it gives, word for
// word (none when empty).
void oddForm(const char *row, const char *className, const QString &inner, const char *held,
             const char *warning = "")
{
    QTest::newRow(row) << widgetXml(className, "odd", inner) << QString(held) << QString(warning);
}

// The form as Designer saves it after loading it.
QString savedByDesigner(const QString &ui)
{
    QDesignerFormWindowInterface *form = createFormWindow(ui);
    const QString saved = form->contents();
    closeFormWindow(form);
    return saved;
}

QString losses(const char *road, const QByteArray &input, const RoundTrip &trip)
{
    QStringList lost;
    if (!trip.loaded)
        lost << QStringLiteral("not loaded: ") + trip.error;
    for (const FormValues::Value &loss :
         FormValues::unexplainedLosses(input, trip.saved, trip.warnings))
        lost << FormValues::describe(loss);
    if (lost.isEmpty())
        return QString();
    return QStringLiteral("%1:\n%2\nwarnings:\n%3\nsaved:\n%4")
            .arg(QLatin1String(road), lost.join(QLatin1Char('\n')),
                 trip.warnings.join(QLatin1Char('\n')), QString::fromUtf8(trip.saved));
}

} // namespace

class TestFormsInDesigner : public QObject
{
    Q_OBJECT
    QObject *m_collection = nullptr;
    QList<QDesignerCustomWidgetInterface *> m_widgets;

private slots:
    void initTestCase()
    {
        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QCOMPARE(designerCore()->pluginInstances().size(), 1);
        m_collection = designerCore()->pluginInstances().constFirst();
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
        QVERIFY(collection);
        m_widgets = collection->customWidgets();
    }

    // The same 44 plug-ins in the same order on every call, the collection's children.
    void loadsOneCollection()
    {
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
        QCOMPARE(m_widgets.size(), widgetCount);
        QCOMPARE(collection->customWidgets(), m_widgets);
        QCOMPARE(m_collection->children().size(), widgetCount);
    }

    void eachWidget_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < widgetCount; ++i)
            QTest::newRow(qPrintable(widgetNames.at(i))) << i;
    }

    // The plug-in, the collection's child of its own class. The widget box's entry: its group
    // follows the include file, and the default XML it drops makes a widget of the class on a
    // form, which saves the default's object name.
    void eachWidget()
    {
        QFETCH(int, index);
        QDesignerCustomWidgetInterface *plugin = m_widgets.at(index);
        QObject *child = m_collection->children().at(index);
        QCOMPARE(QLatin1String(child->metaObject()->className()),
                 widgetNames.at(index) + QLatin1String("Plugin"));
        QCOMPARE(child->qt_metacast(QDesignerCustomWidgetInterface_iid),
                 static_cast<void *>(plugin));
        QCOMPARE(plugin->name(), QLatin1String("VoCc::") + widgetNames.at(index));
        QCOMPARE(plugin->group(),
                 QLatin1String(plugin->includeFile().contains(QLatin1String("emplate/"))
                                       ? "Tarn Template Widgets"
                                       : "Tarn Widgets"));
        // A container's default comes inside <ui>, with the declaration of its page method.
        QString dropped = plugin->domXml();
        dropped = dropped.mid(dropped.indexOf(QLatin1String("<widget ")));
        dropped.truncate(dropped.lastIndexOf(QLatin1String("</widget>")) + 9);
        const QRegularExpressionMatch widget =
                QRegularExpression(QStringLiteral("^<widget class=\"([^\"]+)\" name=\"([^\"]+)\">"))
                        .match(dropped);
        QVERIFY2(widget.hasMatch(), qPrintable(plugin->domXml()));
        QCOMPARE(widget.captured(1), plugin->name());
        QDesignerFormWindowInterface *form = createFormWindow(formXml(dropped));
        QWidget *made = formChild(form, qPrintable(widget.captured(2)));
        QVERIFY(made);
        QVERIFY(made->inherits(qPrintable(plugin->name())));
        QVERIFY(form->contents().contains(widget.captured(0)));
        closeFormWindow(form);
    }

    void propertyEditsRepaintOncePerCreatedWidget()
    {
        QDesignerPropertyEditorInterface *editor = designerCore()->propertyEditor();
        QDesignerCustomWidgetInterface *listViews = m_widgets.at(widgetNames.indexOf("ListView"));
        countedObject = dynamic_cast<QObject *>(listViews);
        static QSignalSpyCallbackSet hooks = {nullptr, countSlot, nullptr, nullptr};
        qt_register_signal_spy_callbacks(&hooks);
        const auto unhook = qScopeGuard([] { qt_register_signal_spy_callbacks(nullptr); });
        auto slotRunsPerEdit = [editor] {
            slotCalls = 0;
            emit editor->propertyChanged(QStringLiteral("toolTip"), QStringLiteral("tip"));
            return slotCalls;
        };
        const int before = slotRunsPerEdit();
        // Three list views more: three more runs of the slot for one edit.
        QDesignerFormWindowInterface *form = createFormWindow(
                formXml(widgetXml("VoCc::ListView", "a") + widgetXml("VoCc::ListView", "b")
                        + widgetXml("VoCc::ListView", "c")));
        editor->setObject(formChild(form, "a"));
        QCOMPARE(slotRunsPerEdit(), before + 3);

        // Each run repaints the edited list view. A form window is never shown here, so a
        // shown list view stands in for the edited one.
        QScopedPointer<QWidget> shown(listViews->createWidget(nullptr));
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown.data()));
        editor->setObject(shown.data());
        QTest::qWait(100);
        PaintCounter paints;
        shown->installEventFilter(&paints);
        emit editor->propertyChanged(QStringLiteral("toolTip"), QStringLiteral("other"));
        QTRY_VERIFY(paints.paints > 0);
        editor->setObject(nullptr);
        closeFormWindow(form);
    }

    void resourceSetActivationRefreshesPushButtonMatrices()
    {
        // A push-button matrix at the top and one nested in a group box, next to the other
        // two kinds of matrix. A stale button text shows whether the list was applied again.
        QDesignerFormWindowInterface *form = createFormWindow(formXml(
                widgetXml("VoCc::MatrixPushButtons", "outer")
                + widgetXml("QGroupBox", "box", widgetXml("VoCc::MatrixPushButtons", "inner"))
                + widgetXml("VoCc::MatrixCheckBoxes", "checks")
                + widgetXml("VoCc::MatrixRadioButtons", "radios")));
        QList<QAbstractButton *> firstButtons;
        for (const char *name : {"outer", "inner", "checks", "radios"}) {
            auto *matrix = formChild<VoCc::AbstractMatrixOptions>(form, name);
            QVERIFY2(matrix, name);
            matrix->setTextList({QStringLiteral("one")});
            matrix->button(0)->setText(QStringLiteral("stale"));
            firstButtons << matrix->button(0);
        }
        QtResourceModel *model = designerCore()->resourceModel();
        const auto activateResourceSet = [model] {
            model->setCurrentResourceSet(model->addResourceSet(QStringList()));
            QCoreApplication::processEvents(); // the matrices show list changes from the event loop
        };
        activateResourceSet();
        QStringList texts;
        for (const QAbstractButton *button : firstButtons)
            texts << button->text();
        QCOMPARE(texts, QStringList({"one", "one", "stale", "stale"}));

        // No active form: nothing to walk.
        designerCore()->formWindowManager()->setActiveFormWindow(nullptr);
        firstButtons.at(0)->setText(QStringLiteral("stale"));
        activateResourceSet();
        QCOMPARE(firstButtons.at(0)->text(), QStringLiteral("stale"));
        closeFormWindow(form);
    }

    void pageGroupTitles()
    {
        QDesignerFormWindowInterface *form = createFormWindow(groupForm(page("p0") + page("p1")));
        auto *group = formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        // That a page switch selects the page on the form the page header clicks of the form
        // editing tests show.
        group->setCurrentIndex(1);

        // A title edit marks the current page's title as changed, so that it is saved.
        auto titleChanged = [form](QWidget *page) {
            auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(
                    form->core()->extensionManager(), page);
            return sheet->isChanged(sheet->indexOf(QStringLiteral("windowTitle")));
        };
        QVERIFY(!titleChanged(group->widget(1)));
        group->setPageTitle(QStringLiteral("Renamed"));
        QVERIFY(titleChanged(group->widget(1)));
        QVERIFY(!titleChanged(group->widget(0)));
        QVERIFY(form->contents().contains(QLatin1String("<string>Renamed</string>")));
        closeFormWindow(form);

        // Outside any form (a preview) a page switch and a title edit select nothing: the
        // title goes to the page switched to.
        QWidget holder;
        auto *preview = static_cast<VoCc::DrawbackBoxGroup *>(
                m_widgets.at(widgetNames.indexOf("DrawbackBoxGroup"))->createWidget(&holder));
        preview->addPage(new QWidget);
        preview->addPage(new QWidget);
        preview->setCurrentIndex(1);
        preview->setPageTitle(QStringLiteral("x"));
        QCOMPARE(preview->box(0)->title(), QString());
        QCOMPARE(preview->box(1)->title(), QStringLiteral("x"));
    }

    void containerExtensionEditsPagesOnAForm()
    {
        QDesignerFormWindowInterface *form = createFormWindow(groupForm(page("page")));
        auto *group = formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        auto *container = qt_extension<QDesignerContainerExtension *>(
                form->core()->extensionManager(), group);
        QVERIFY(container);
        QCOMPARE(container->widget(0)->objectName(), QStringLiteral("page"));
        // Its factory serves page groups only, under the Qt 5 identifier only.
        auto *factory =
                qobject_cast<QExtensionFactory *>(dynamic_cast<QObject *>(container)->parent());
        QVERIFY(factory);
        QVERIFY(factory->inherits("DrawbackBoxGroupExtensionFactory"));
        QWidget plain;
        QVERIFY(!factory->extension(&plain, QString(Q_TYPEID(QDesignerContainerExtension))));
        QVERIFY(!factory->extension(group, QString(Q_TYPEID(QDesignerTaskMenuExtension))));
        QVERIFY(!factory->extension(group, QStringLiteral("com.trolltech.Qt.Designer.Container")));

        // Designer's "Insert Page" and "Delete Page" commands, undone and redone.
        QUndoStack *history = form->commandHistory();
        for (int i = 0; i < 2; ++i) {
            auto *add = new AddContainerWidgetPageCommand(form);
            add->init(group, PageContainer, AddContainerWidgetPageCommand::InsertAfter);
            history->push(add);
        }
        QCOMPARE(container->count(), 3);
        const QWidgetList pages = pagesOf(group);
        history->undo();
        QCOMPARE(group->count(), 2);
        history->redo();
        QCOMPARE(pagesOf(group), pages);
        auto *remove = new DeleteContainerWidgetPageCommand(form);
        remove->init(group, PageContainer);
        history->push(remove);
        QCOMPARE(group->count(), 2);
        history->undo();
        QCOMPARE(pagesOf(group), pages);

        // Every switch is traced, also one to the page already current.
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtDebugMsg,
                                 "DrawbackBoxGroupContainerExtension::currentIndexChanged 2");
        auto *change = new ChangeCurrentPageCommand(form);
        change->init(group, 2);
        history->push(change);
        QCOMPARE(group->currentIndex(), 2);
        container->setCurrentIndex(2);

        // The extension's own operations go straight to the group.
        auto *inserted = new QWidget;
        container->insertWidget(0, inserted);
        QCOMPARE(group->widget(0), inserted);
        auto *appended = new QWidget;
        container->addWidget(appended);
        QCOMPARE(group->widget(4), appended);
        container->remove(0);
        QCOMPARE(pagesOf(group), pages + QWidgetList({appended}));
        delete inserted;

        // The saved form holds the pages Designer made.
        QCOMPARE(form->contents().count(QLatin1String("<widget class=\"QWidget\" name=\"page")), 3);
        closeFormWindow(form);
    }

    // What the extension forwards to the form builder is shown by the round trips of the
    // example form and of every edited widget; here, which objects get one: every widget, Qt's
    // own too, and no action or layout.
    void extraInfoForEveryWidget()
    {
        QDesignerFormEditorInterface *core = designerCore();
        QDesignerFormWindowInterface *form = createFormWindow(formXml(
                QStringLiteral("<action name=\"openAction\"/>")
                + widgetXml("QWidget", "holder",
                            QStringLiteral("<layout class=\"QVBoxLayout\" name=\"column\"><item>%1"
                                           "</item></layout>")
                                    .arg(widgetXml("QPushButton", "button")))
                + widgetXml("VoCc::MatrixPushButtons", "matrix")));
        const auto extraInfo = [core](QObject *object) {
            return qt_extension<QDesignerExtraInfoExtension *>(core->extensionManager(), object);
        };
        QWidget *main = form->mainContainer();
        for (QWidget *widget : {main, formChild(form, "holder"), formChild(form, "button"),
                                formChild(form, "matrix")}) {
            QDesignerExtraInfoExtension *extension = extraInfo(widget);
            QVERIFY2(extension, qPrintable(widget->objectName()));
            QCOMPARE(extension->widget(), widget);
            QCOMPARE(extension->core(), core);
        }
        QVERIFY(!extraInfo(main->findChild<QAction *>(QStringLiteral("openAction"))));
        QVERIFY(!extraInfo(main->findChild<QLayout *>(QStringLiteral("column"))));
        closeFormWindow(form);
    }

    void exampleFormSurvivesDesigner()
    {
        // The example form is kept as Designer saves it, Designer 5 and Designer 6 alike:
        // loaded and saved, it comes back byte for byte, each widget's entries written once
        // through the extra-info hooks.
        QFile file(QStringLiteral(CC_EXAMPLE_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString original = QString::fromUtf8(file.readAll());
        QCOMPARE(original.count(QStringLiteral("<string notr=\"true\">fileOpen</string>")), 1);
        QCOMPARE(savedByDesigner(original), original);
    }

    void translationMarksSurviveDesigner()
    {
        // lupdate finds the same messages in a form before and after Designer saved it: the
        // texts and tool tips of every family with their disambiguations and comments, and
        // none of the strings marked not to be translated. lupdate does not report ids from
        // forms; the saved form holds every one.
        const QString original = markedEntries();
        const QStringList before = linguistMessages(original);
        QVERIFY2(before.contains(QStringLiteral("Alpha | menu | note | ")),
                 qPrintable(before.join(QLatin1Char('\n'))));
        QVERIFY(before.contains(QStringLiteral("One | menu | grid | ")));
        QVERIFY(before.filter(QStringLiteral("code")).isEmpty());
        const QString saved = savedByDesigner(original);
        QCOMPARE(linguistMessages(saved), before);
        const QRegularExpression ids(QStringLiteral(" id=\"cc\\.[a-z.]+\""));
        QCOMPARE(original.count(ids), 11);
        QCOMPARE(saved.count(ids), 11);
    }

    void keptOrSaid_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("warning");
        const QString textA = propertyXml("text", "A");
        oddForm("unknown item property", "VoCc::OptionButtons",
                itemXml(textA + propertyXml("colour", "red")), ">A<",
                "VoCc::OptionButtons \"odd\": not kept from the form: item 1 property "
                "\"colour\" value \"red\"");
        oddForm("lists of unequal length", "VoCc::OptionRadios",
                itemXml(textA + propertyXml("data", "1"))
                        + itemXml(propertyXml("toolTip", "only a tip")),
                "only a tip");
        oddForm("empty item", "VoCc::OptionComboBox",
                itemXml(QString()) + itemXml(propertyXml("text", "B")), ">B<");
        oddForm("missing icon", "VoCc::OptionButtons",
                itemXml(textA + propertyXml("icon", "/nowhere/x.png")), "/nowhere/x.png");
        oddForm("rows beyond the editor", "VoCc::MatrixPushButtons",
                propertyXml("row", "500", "number") + propertyXml("column", "2", "number"),
                "<number>99</number>",
                "VoCc::MatrixPushButtons \"odd\": property \"row\" is 500, more than the 99 rows "
                "or columns a grid can have; limited to 99");
        oddForm("items on a widget without entries", "VoCc::Pane",
                itemXml(propertyXml("text", "lost")), "",
                "VoCc::Pane \"odd\": not kept from the form: item 1 property \"text\" value "
                "\"lost\"");
        oddForm("unknown widget property", "VoCc::ComboBox", propertyXml("bogus", "7", "number"),
                "bogus");
    }

    void keptOrSaid()
    {
        QFETCH(QString, body);
        QFETCH(QString, held);
        QFETCH(QString, warning);
        const WarningLog log;
        const QString saved = savedByDesigner(formXml(body));
        QVERIFY2(saved.contains(held), qPrintable(saved));
        QCOMPARE(log.warnings, warning.isEmpty() ? QStringList() : QStringList(warning));
    }

    void everyValueKeptOrNamed_data()
    {
        QTest::addColumn<QString>("form");
        const QString textA = propertyXml("text", "A");
        const QString twoTexts =
                itemXml(propertyXml("text", "first") + propertyXml("text", "second"));
        const QString nested = itemXml(textA + itemXml(propertyXml("text", "inner")));
        const QString grid =
                propertyXml("row", "2", "number") + propertyXml("column", "2", "number");
        const auto title = [](const char *value, const char *kind = "string") {
            return propertyXml("windowTitle", value, kind);
        };
        formOf("item text as a string list", "VoCc::OptionButtons",
               itemXml(stringsXml("text", {"listed", "twice"})) + itemXml(textA));
        formOf("item property given twice", "VoCc::OptionRadios", twoTexts);
        formOf("unknown widget property", "VoCc::CheckableTextComboBox",
               propertyXml("zork", "7", "number") + propertyXml("note", "kept"));
        formOf("combo box item text given twice", "VoCc::ComboBox", twoTexts);
        formOf("combo box item text as an icon", "VoCc::ComboBox",
               itemXml(textA + propertyXml("action", "a1"))
                       + itemXml(QStringLiteral("<property name=\"text\"><iconset><normaloff>x.png"
                                                "</normaloff></iconset></property>")
                                 + propertyXml("action", "a2"))
                       + itemXml(propertyXml("text", "C") + propertyXml("action", "a3")));
        formOf("item nested in an item", "VoCc::CheckableTextComboBox", nested);
        formOf("item nested in a combo box item", "VoCc::ComboBox", nested);
        formOf("marked combo box item", "VoCc::ComboBox",
               itemXml(markedProperty("text", "Delta", "comment=\"menu\" extracomment=\"note\"")));
        formOf("unknown item property", "VoCc::OptionButtons",
               itemXml(textA + propertyXml("colour", "red")));
        formOf("items on a widget without entries", "VoCc::Pane",
               itemXml(propertyXml("text", "lost")));
        formOf("marks on data", "VoCc::OptionComboBox",
               itemXml(textA + markedProperty("data", "d1", "notr=\"true\" comment=\"why\"")));
        formOf("pop-button text list as one string", "VoCc::MatrixPopButtons",
               grid + propertyXml("textList", "alone") + itemXml(propertyXml("toolTip", "tip")));
        formOf("pop-button texts in the list and the items", "VoCc::MatrixPopButtons",
               grid + stringsXml("textList", {"one", ""}) + itemXml(propertyXml("text", "other"))
                       + itemXml(propertyXml("text", "two")));
        formOf("pop-button item text beside the list's", "VoCc::MatrixPopButtons",
               grid + stringsXml("textList", {"one", "", "three"})
                       + itemXml(markedProperty("text", "one", "comment=\"own\""))
                       + itemXml(markedProperty("text", "two", "comment=\"second\"")));
        formOf("pop-button text list given twice", "VoCc::MatrixPopButtons",
               grid + stringsXml("textList", {"old"}) + stringsXml("textList", {"new"}));
        formOf("rows given twice", "VoCc::MatrixPushButtons",
               grid + propertyXml("row", "3", "number") + itemXml(textA));
        formOf("rows below zero", "VoCc::MatrixRadioButtons",
               propertyXml("row", "-3", "number") + propertyXml("column", "2", "number"));
        formOf("columns not a number", "VoCc::MatrixCheckBoxes",
               propertyXml("row", "2", "number") + propertyXml("column", "many"));
        formOf("marked strings the run-time writer saves plain", "VoCc::Pane",
               markedProperty("toolTip", "Tip", "comment=\"c\" extracomment=\"e\"")
                       + QStringLiteral("<property name=\"note\" stdset=\"0\"><string "
                                        "comment=\"d\" id=\"n1\">kept</string></property>"));
        formOf("combo box item text longer than shown", "VoCc::ComboBox",
               itemXml(propertyXml("text", qPrintable(QString(1500, QLatin1Char('y'))))));
        formOf("current entry out of range", "VoCc::OptionButtons",
               propertyXml("currentIndex", "7", "number") + itemXml(textA));
        formOf("current combo box item out of range", "VoCc::ComboBox",
               propertyXml("currentIndex", "2147483647") + itemXml(textA));
        formOf("current page out of range", "VoCc::DrawbackBoxGroup",
               propertyXml("currentIndex", "4", "number") + page("page", title("only")));
        formOf("marked page title", "VoCc::DrawbackBoxGroup",
               page("page", markedProperty("windowTitle", "Title", "comment=\"c\" id=\"t\"")));
        formOf("page title as a picture and a list", "VoCc::DrawbackBoxGroup",
               page("picture", title("p.png", "pixmap"))
                       + page("list", stringsXml("windowTitle", {"a", "b"})));
        formOf("page title given twice", "VoCc::DrawbackBoxGroup",
               page("page", title("first") + title("second")));
        formOf("page without a name titled by a picture", "VoCc::DrawbackBoxGroup",
               page("page", title("first"))
                       + QStringLiteral("<widget class=\"QWidget\">%1</widget>")
                                 .arg(title("p.png", "pixmap")));
        formOf("pages of one name", "VoCc::DrawbackBoxGroup",
               page("page", title("first")) + page("page", title("second")));
    }

    void everyValueKeptOrNamed()
    {
        // Through Designer (load, save, load, save) and through VoCc::FormBuilder (load, save),
        // every value of the form is in what was saved, or a warning names the widget, the
        // property and the value.
        QFETCH(QString, form);
        const QByteArray input = form.toUtf8();
        const QString designer = losses("Designer", input, throughDesigner(input));
        QVERIFY2(designer.isEmpty(), qPrintable(designer));
        const QString builder = losses("VoCc::FormBuilder", input, throughFormBuilder(input));
        QVERIFY2(builder.isEmpty(), qPrintable(builder));
    }
};

QTEST_MAIN(TestFormsInDesigner)
#include "tst_formsindesigner.moc"
