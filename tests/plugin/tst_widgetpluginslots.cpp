#include "designertestcore.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QAbstractButton>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerPropertyEditorInterface>
#include <QDesignerPropertySheetExtension>
#include <QExtensionManager>
#include <QtCore/private/qobject_p.h>
#include <QtDesigner/private/qtresourcemodel_p.h>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace {

// Counts the slot calls that reach one object, through Qt's signal-spy hooks.
struct SlotCounter
{
    static QObject *target;
    static QHash<QByteArray, int> calls;

    static void slotBegin(QObject *caller, int index, void **)
    {
        if (caller == target)
            ++calls[caller->metaObject()->method(index).name()];
    }

    explicit SlotCounter(QObject *object)
    {
        target = object;
        calls.clear();
        static QSignalSpyCallbackSet set = {nullptr, slotBegin, nullptr, nullptr};
        qt_register_signal_spy_callbacks(&set);
    }
    ~SlotCounter() { qt_register_signal_spy_callbacks(nullptr); }
};
QObject *SlotCounter::target = nullptr;
QHash<QByteArray, int> SlotCounter::calls;

class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

QObject *pluginObject(const char *pluginClass)
{
    const QObjectList plugins = CcTest::designerCore()->pluginInstances().constFirst()->children();
    for (QObject *plugin : plugins) {
        if (qstrcmp(plugin->metaObject()->className(), pluginClass) == 0)
            return plugin;
    }
    return nullptr;
}

QString widgetXml(const char *className, const QString &name, const QString &inner = QString())
{
    return QStringLiteral("  <widget class=\"%1\" name=\"%2\">\n%3  </widget>\n")
            .arg(QLatin1String(className), name, inner);
}

} // namespace

// The plug-ins' slots, driven by the real Designer signals they listen to.
class TestWidgetPluginSlots : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QCOMPARE(CcTest::designerCore()->pluginInstances().size(), 1);
    }

    void propertyEditsRepaintOncePerCreatedWidget()
    {
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        QDesignerPropertyEditorInterface *editor = core->propertyEditor();
        QObject *plugin = pluginObject("ListViewPlugin");
        QVERIFY(plugin);

        QDesignerFormWindowInterface *form = CcTest::createFormWindow(
                CcTest::formXml(widgetXml("VoCc::ListView", QStringLiteral("first"))));
        QWidget *listView = form->mainContainer()->findChild<QWidget *>(QStringLiteral("first"));
        QVERIFY(listView);
        editor->setObject(listView);

        SlotCounter counter(plugin);
        emit editor->propertyChanged(QStringLiteral("toolTip"), QStringLiteral("a"));
        const int before = SlotCounter::calls.value("propertyChanged");
        QVERIFY(before >= 1);

        // Three more list views: three more runs of the slot for one edit.
        QDesignerFormWindowInterface *more = CcTest::createFormWindow(
                CcTest::formXml(widgetXml("VoCc::ListView", QStringLiteral("a"))
                                + widgetXml("VoCc::ListView", QStringLiteral("b"))
                                + widgetXml("VoCc::ListView", QStringLiteral("c"))));
        core->formWindowManager()->setActiveFormWindow(form);
        editor->setObject(listView);
        SlotCounter::calls.clear();
        emit editor->propertyChanged(QStringLiteral("toolTip"), QStringLiteral("b"));
        QCOMPARE(SlotCounter::calls.value("propertyChanged"), before + 3);

        // What each run does: repaint the edited list view. A form window is never shown
        // here, so a shown list view stands in for the edited one.
        QDesignerCustomWidgetInterface *listViewPlugin =
                qobject_cast<QDesignerCustomWidgetInterface *>(plugin);
        QScopedPointer<QWidget> visible(listViewPlugin->createWidget(nullptr));
        visible->show();
        QVERIFY(QTest::qWaitForWindowExposed(visible.data()));
        editor->setObject(visible.data());
        QTest::qWait(100);
        PaintCounter paints;
        visible->installEventFilter(&paints);
        emit editor->propertyChanged(QStringLiteral("toolTip"), QStringLiteral("c"));
        QTRY_VERIFY(paints.paints > 0);

        // Another class's plug-in leaves the list view alone.
        QObject *treePlugin = pluginObject("TreeViewPlugin");
        QVERIFY(treePlugin);
        QTest::qWait(100);
        paints.paints = 0;
        QMetaObject::invokeMethod(treePlugin, "propertyChanged", Q_ARG(QString, QString()),
                                  Q_ARG(QVariant, QVariant()));
        QTest::qWait(50);
        QCOMPARE(paints.paints, 0);

        editor->setObject(listView);
        CcTest::closeFormWindow(more);
        CcTest::closeFormWindow(form);
    }

    void resourceSetActivationRefreshesPushButtonMatrices()
    {
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        // A push-button matrix at the top and one nested in a group box, next to the other
        // two kinds of matrix.
        const QString nested =
                QStringLiteral("   <widget class=\"QGroupBox\" name=\"box\">\n%1   </widget>\n")
                        .arg(widgetXml("VoCc::MatrixPushButtons", QStringLiteral("inner")));
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(
                CcTest::formXml(widgetXml("VoCc::MatrixPushButtons", QStringLiteral("outer"))
                                + widgetXml("QWidget", QStringLiteral("holder"), nested)
                                + widgetXml("VoCc::MatrixCheckBoxes", QStringLiteral("checks"))
                                + widgetXml("VoCc::MatrixRadioButtons", QStringLiteral("radios"))));
        QWidget *main = form->mainContainer();
        const QStringList names = {"outer", "inner", "checks", "radios"};
        QHash<QString, VoCc::AbstractMatrixOptions *> matrices;
        for (const QString &name : names) {
            matrices[name] = main->findChild<VoCc::AbstractMatrixOptions *>(name);
            QVERIFY2(matrices[name], qPrintable(name));
            matrices[name]->setTextList({QStringLiteral("one"), QStringLiteral("two")});
            // A stale button text shows whether the list was applied again.
            matrices[name]->button(0)->setText(QStringLiteral("stale"));
        }

        QtResourceModel *model = core->resourceModel();
        QtResourceSet *set = model->addResourceSet(QStringList());
        model->setCurrentResourceSet(set);
        QCOMPARE(matrices["outer"]->button(0)->text(), QStringLiteral("one"));
        QCOMPARE(matrices["inner"]->button(0)->text(), QStringLiteral("one"));
        QCOMPARE(matrices["checks"]->button(0)->text(), QStringLiteral("stale"));
        QCOMPARE(matrices["radios"]->button(0)->text(), QStringLiteral("stale"));

        // No active form: nothing to walk.
        core->formWindowManager()->setActiveFormWindow(nullptr);
        matrices["outer"]->button(0)->setText(QStringLiteral("stale"));
        model->setCurrentResourceSet(model->addResourceSet(QStringList()));
        QCOMPARE(matrices["outer"]->button(0)->text(), QStringLiteral("stale"));
        CcTest::closeFormWindow(form);
    }

    void pageGroupFollowsPageSwitchesAndTitles()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(
                CcTest::formXml(QStringLiteral("  <widget class=\"VoCc::DrawbackBoxGroup\" "
                                               "name=\"group\">\n"
                                               "   <widget class=\"QWidget\" name=\"p0\"/>\n"
                                               "   <widget class=\"QWidget\" name=\"p1\"/>\n"
                                               "   <widget class=\"QWidget\" name=\"p2\"/>\n"
                                               "  </widget>\n"),
                                QStringLiteral("  <customwidget>\n"
                                               "   <class>VoCc::DrawbackBoxGroup</class>\n"
                                               "   <extends>QWidget</extends>\n"
                                               "   <addpagemethod>addPage</addpagemethod>\n"
                                               "  </customwidget>\n")));
        auto *group =
                form->mainContainer()->findChild<VoCc::DrawbackBoxGroup *>(QStringLiteral("group"));
        QVERIFY(group);
        QCOMPARE(group->count(), 3);
        // Pages loaded through addPage are not managed yet; Designer selects managed widgets
        // only.
        for (int i = 0; i < group->count(); ++i)
            form->manageWidget(group->widget(i));

        group->setCurrentIndex(2);
        QVERIFY(form->cursor()->isWidgetSelected(group->widget(2)));
        QVERIFY(!form->cursor()->isWidgetSelected(group->widget(0)));
        group->setCurrentIndex(1);
        QVERIFY(form->cursor()->isWidgetSelected(group->widget(1)));

        // A title edit marks the current page's title as changed, so it is saved, and it stays
        // marked after the title is edited back.
        QWidget *page = group->widget(1);
        auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(
                form->core()->extensionManager(), page);
        QVERIFY(sheet);
        const int titleIndex = sheet->indexOf(QStringLiteral("windowTitle"));
        QVERIFY(!sheet->isChanged(titleIndex));
        group->setPageTitle(QStringLiteral("Renamed"));
        QVERIFY(sheet->isChanged(titleIndex));
        QVERIFY(form->contents().contains(QLatin1String("<string>Renamed</string>")));
        group->setPageTitle(QString());
        QVERIFY(sheet->isChanged(titleIndex));
        // Only the current page is marked.
        auto *otherSheet = qt_extension<QDesignerPropertySheetExtension *>(
                form->core()->extensionManager(), group->widget(0));
        QVERIFY(!otherSheet->isChanged(otherSheet->indexOf(QStringLiteral("windowTitle"))));
        CcTest::closeFormWindow(form);

        // The same group outside any form: switching pages selects nothing and does not fail.
        VoCc::DrawbackBoxGroup loose;
        QDesignerCustomWidgetInterface *plugin = nullptr;
        const auto widgets = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(
                                     CcTest::designerCore()->pluginInstances().constFirst())
                                     ->customWidgets();
        for (QDesignerCustomWidgetInterface *w : widgets) {
            if (w->name() == QLatin1String("VoCc::DrawbackBoxGroup"))
                plugin = w;
        }
        QVERIFY(plugin);
        QWidget holder;
        auto *preview = static_cast<VoCc::DrawbackBoxGroup *>(plugin->createWidget(&holder));
        preview->addPage(new QWidget);
        preview->addPage(new QWidget);
        preview->setCurrentIndex(1);
        preview->setPageTitle(QStringLiteral("x"));
        QCOMPARE(preview->currentIndex(), 1);
    }
};

QTEST_MAIN(TestWidgetPluginSlots)
#include "tst_widgetpluginslots.moc"
