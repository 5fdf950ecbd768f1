// The module loaded into a real Designer core: one collection, the 44 plug-ins in order, each
// with the descriptions and default XML the widget box relies on. Then the plug-ins at work on
// forms: their slots, driven by the Designer signals they listen to; the page group as a
// multi-page container, driven by Designer's own page commands; and the extra-info extension
// that every widget gets.

#include "designertestcore.h"
#include "pagegroup.h"
#include "uixml.h"

#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QExtensionFactory>
#include <QtDesigner>
#include <QtTest>
#include <QtCore/private/qobject_p.h>
#include <QtDesigner/private/qdesigner_command_p.h>
#include <QtDesigner/private/qtresourcemodel_p.h>
#include <QtDesigner/private/shared_enums_p.h>

using namespace qdesigner_internal;
using CcTest::pagesOf;
using CcTest::widgetXml;

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
    return CcTest::formXml(widgetXml("VoCc::DrawbackBoxGroup", "group", pages),
                           CcTest::pageGroupDeclaration());
}

// Two of our widgets next to a plain Qt button, a layout and an action.
const QString formWithExtras = CcTest::formXml(QStringLiteral(
        "<action name=\"openAction\"/>"
        "<widget class=\"QWidget\" name=\"holder\"><layout class=\"QVBoxLayout\" name=\"column\">"
        " <item><widget class=\"VoCc::OptionButtons\" name=\"options\"/></item>"
        " <item><widget class=\"QPushButton\" name=\"button\"/></item>"
        "</layout></widget>"
        "<widget class=\"VoCc::MatrixPushButtons\" name=\"matrix\"/>"));

} // namespace

class TestPluginInDesigner : public QObject
{
    Q_OBJECT
    QObject *m_collection = nullptr;
    QList<QDesignerCustomWidgetInterface *> m_widgets;

    QDesignerCustomWidgetInterface *plugin(const char *pluginClass) const
    {
        for (QObject *plugin : m_collection->children()) {
            if (qstrcmp(plugin->metaObject()->className(), pluginClass) == 0)
                return qobject_cast<QDesignerCustomWidgetInterface *>(plugin);
        }
        return nullptr;
    }

private slots:
    void initTestCase()
    {
        CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QCOMPARE(CcTest::designerCore()->pluginInstances().size(), 1);
        m_collection = CcTest::designerCore()->pluginInstances().constFirst();
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
        QVERIFY(collection);
        m_widgets = collection->customWidgets();
    }

    // The same 44 plug-ins in the same order on every call, the collection's children, each
    // of its own class.
    void loadsOneCollection()
    {
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
        QCOMPARE(m_widgets.size(), widgetCount);
        QCOMPARE(collection->customWidgets(), m_widgets);
        const QObjectList plugins = m_collection->children();
        QCOMPARE(plugins.size(), widgetCount);
        for (int i = 0; i < widgetCount; ++i) {
            QCOMPARE(QLatin1String(plugins.at(i)->metaObject()->className()),
                     widgetNames.at(i) + QLatin1String("Plugin"));
            QCOMPARE(plugins.at(i)->qt_metacast(QDesignerCustomWidgetInterface_iid),
                     static_cast<void *>(m_widgets.at(i)));
        }
    }

    void eachWidget_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < widgetCount; ++i)
            QTest::newRow(qPrintable(widgetNames.at(i))) << i;
    }

    // The widget box's entry: its group follows the include file, and the default XML it
    // drops makes a widget of the class on a form, which saves the default's object name.
    void eachWidget()
    {
        QFETCH(int, index);
        QDesignerCustomWidgetInterface *plugin = m_widgets.at(index);
        QCOMPARE(plugin->name(), QLatin1String("VoCc::") + widgetNames.at(index));
        const bool inTemplates =
                plugin->includeFile().contains(QLatin1String("emplate/"), Qt::CaseSensitive);
        QCOMPARE(plugin->group(),
                 QLatin1String(inTemplates ? "Tarn Template Widgets" : "Tarn Widgets"));
        // A container's default comes inside <ui>, with the declaration of its page method.
        QString dropped = plugin->domXml();
        dropped = dropped.mid(dropped.indexOf(QLatin1String("<widget ")));
        dropped.truncate(dropped.lastIndexOf(QLatin1String("</widget>")) + 9);
        static const QRegularExpression opening(
                QStringLiteral("^<widget class=\"([^\"]+)\" name=\"([^\"]+)\">"));
        const QRegularExpressionMatch widget = opening.match(dropped);
        QVERIFY2(widget.hasMatch(), qPrintable(plugin->domXml()));
        QCOMPARE(widget.captured(1), plugin->name());
        const QString objectName = widget.captured(2);
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(dropped));
        QWidget *made = CcTest::formChild(form, qPrintable(objectName));
        QVERIFY(made);
        QVERIFY(made->inherits(qPrintable(plugin->name())));
        QVERIFY(form->contents().contains(QStringLiteral("<widget class=\"%1\" name=\"%2\">")
                                                  .arg(plugin->name(), objectName)));
        CcTest::closeFormWindow(form);
    }

    void propertyEditsRepaintOncePerCreatedWidget()
    {
        QDesignerPropertyEditorInterface *editor = CcTest::designerCore()->propertyEditor();
        QDesignerCustomWidgetInterface *listViews = plugin("ListViewPlugin");
        QVERIFY(listViews);
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
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(
                CcTest::formXml(widgetXml("VoCc::ListView", "a") + widgetXml("VoCc::ListView", "b")
                                + widgetXml("VoCc::ListView", "c")));
        editor->setObject(CcTest::formChild(form, "a"));
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
        CcTest::closeFormWindow(form);
    }

    void resourceSetActivationRefreshesPushButtonMatrices()
    {
        // A push-button matrix at the top and one nested in a group box, next to the other
        // two kinds of matrix.
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(
                widgetXml("VoCc::MatrixPushButtons", "outer")
                + widgetXml("QGroupBox", "box", widgetXml("VoCc::MatrixPushButtons", "inner"))
                + widgetXml("VoCc::MatrixCheckBoxes", "checks")
                + widgetXml("VoCc::MatrixRadioButtons", "radios")));
        const char *names[] = {"outer", "inner", "checks", "radios"};
        QList<QAbstractButton *> firstButtons;
        for (const char *name : names) {
            auto *matrix = CcTest::formChild<VoCc::AbstractMatrixOptions>(form, name);
            QVERIFY2(matrix, name);
            matrix->setTextList({QStringLiteral("one")});
            // A stale button text shows whether the list was applied again.
            matrix->button(0)->setText(QStringLiteral("stale"));
            firstButtons << matrix->button(0);
        }
        QtResourceModel *model = CcTest::designerCore()->resourceModel();
        model->setCurrentResourceSet(model->addResourceSet(QStringList()));
        QCoreApplication::processEvents(); // the matrices show list changes from the event loop
        QStringList texts;
        for (const QAbstractButton *button : firstButtons)
            texts << button->text();
        QCOMPARE(texts, QStringList({"one", "one", "stale", "stale"}));

        // No active form: nothing to walk.
        CcTest::designerCore()->formWindowManager()->setActiveFormWindow(nullptr);
        firstButtons.at(0)->setText(QStringLiteral("stale"));
        model->setCurrentResourceSet(model->addResourceSet(QStringList()));
        QCoreApplication::processEvents();
        QCOMPARE(firstButtons.at(0)->text(), QStringLiteral("stale"));
        CcTest::closeFormWindow(form);
    }

    void pageGroupTitles()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(
                groupForm(widgetXml("QWidget", "p0") + widgetXml("QWidget", "p1")));
        auto *group = CcTest::formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        QCOMPARE(group->count(), 2);
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
        CcTest::closeFormWindow(form);

        // Outside any form (a preview) a page switch and a title edit select nothing: the
        // title goes to the page switched to.
        QWidget holder;
        auto *preview = static_cast<VoCc::DrawbackBoxGroup *>(
                plugin("DrawbackBoxGroupPlugin")->createWidget(&holder));
        preview->addPage(new QWidget);
        preview->addPage(new QWidget);
        preview->setCurrentIndex(1);
        preview->setPageTitle(QStringLiteral("x"));
        QCOMPARE(preview->box(0)->title(), QString());
        QCOMPARE(preview->box(1)->title(), QStringLiteral("x"));
    }

    void containerExtensionEditsPagesOnAForm()
    {
        QDesignerFormWindowInterface *form =
                CcTest::createFormWindow(groupForm(widgetXml("QWidget", "page")));
        auto *group = CcTest::formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        auto *container = qt_extension<QDesignerContainerExtension *>(
                form->core()->extensionManager(), group);
        QVERIFY(container);
        QCOMPARE(container->count(), 1);
        // Its factory serves page groups only, under the Qt 5 identifier only.
        auto *factory =
                qobject_cast<QExtensionFactory *>(dynamic_cast<QObject *>(container)->parent());
        QVERIFY(factory);
        QVERIFY(factory->inherits("DrawbackBoxGroupExtensionFactory"));
        QWidget plain;
        QVERIFY(!factory->extension(&plain, QString(Q_TYPEID(QDesignerContainerExtension))));
        QVERIFY(!factory->extension(group, QString(Q_TYPEID(QDesignerTaskMenuExtension))));
        QVERIFY(!factory->extension(group, QStringLiteral("com.trolltech.Qt.Designer.Container")));
        QCOMPARE(container->widget(0)->objectName(), QStringLiteral("page"));

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
        CcTest::closeFormWindow(form);
    }
    // What the extension forwards to the form builder is shown by the round trips of the
    // example form and of every edited widget; here, which objects get one.
    void extraInfoForEveryWidget()
    {
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(formWithExtras);
        QWidget *main = form->mainContainer();
        const auto extraInfo = [core](QObject *object) {
            return qt_extension<QDesignerExtraInfoExtension *>(core->extensionManager(), object);
        };
        int served = 0;
        for (QWidget *widget : QWidgetList({main}) + main->findChildren<QWidget *>()) {
            if (!form->isManaged(widget))
                continue;
            QDesignerExtraInfoExtension *extension = extraInfo(widget);
            QVERIFY2(extension, qPrintable(widget->objectName()));
            QCOMPARE(extension->widget(), widget);
            QCOMPARE(extension->core(), core);
            ++served;
        }
        QCOMPARE(served, 5); // Form, holder, options, button, matrix

        // An action and a layout are not widgets.
        QVERIFY(!extraInfo(main->findChild<QAction *>(QStringLiteral("openAction"))));
        QVERIFY(!extraInfo(main->findChild<QLayout *>(QStringLiteral("column"))));

        CcTest::closeFormWindow(form);
    }
};

QTEST_MAIN(TestPluginInDesigner)
#include "tst_pluginindesigner.moc"
