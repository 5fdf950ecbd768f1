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
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace {

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

QObject *pluginObject(const char *pluginClass)
{
    const QObjectList plugins = CcTest::designerCore()->pluginInstances().constFirst()->children();
    for (QObject *plugin : plugins) {
        if (qstrcmp(plugin->metaObject()->className(), pluginClass) == 0)
            return plugin;
    }
    return nullptr;
}

QString widgetXml(const char *className, const char *name, const QString &inner = QString())
{
    return QStringLiteral("<widget class=\"%1\" name=\"%2\">%3</widget>\n")
            .arg(QLatin1String(className), QLatin1String(name), inner);
}

QWidget *formChild(QDesignerFormWindowInterface *form, const char *name)
{
    return form->mainContainer()->findChild<QWidget *>(QLatin1String(name));
}

} // namespace

// The plug-ins' slots, driven by the real Designer signals they listen to.
class TestWidgetPluginSlots : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)}); }

    void propertyEditsRepaintOncePerCreatedWidget()
    {
        QDesignerPropertyEditorInterface *editor = CcTest::designerCore()->propertyEditor();
        QObject *plugin = pluginObject("ListViewPlugin");
        QVERIFY(plugin);
        countedObject = plugin;
        QSignalSpyCallbackSet hooks = {nullptr, countSlot, nullptr, nullptr};
        qt_register_signal_spy_callbacks(&hooks);
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
        editor->setObject(formChild(form, "a"));
        QCOMPARE(slotRunsPerEdit(), before + 3);
        qt_register_signal_spy_callbacks(nullptr);

        // Each run repaints the edited list view. A form window is never shown here, so a
        // shown list view stands in for the edited one.
        QScopedPointer<QWidget> shown(
                qobject_cast<QDesignerCustomWidgetInterface *>(plugin)->createWidget(nullptr));
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
            auto *matrix = qobject_cast<VoCc::AbstractMatrixOptions *>(formChild(form, name));
            QVERIFY2(matrix, name);
            matrix->setTextList({QStringLiteral("one")});
            // A stale button text shows whether the list was applied again.
            matrix->button(0)->setText(QStringLiteral("stale"));
            firstButtons << matrix->button(0);
        }
        QtResourceModel *model = CcTest::designerCore()->resourceModel();
        model->setCurrentResourceSet(model->addResourceSet(QStringList()));
        QCOMPARE(firstButtons.at(0)->text(), QStringLiteral("one"));
        QCOMPARE(firstButtons.at(1)->text(), QStringLiteral("one"));
        QCOMPARE(firstButtons.at(2)->text(), QStringLiteral("stale"));
        QCOMPARE(firstButtons.at(3)->text(), QStringLiteral("stale"));

        // No active form: nothing to walk.
        CcTest::designerCore()->formWindowManager()->setActiveFormWindow(nullptr);
        firstButtons.at(0)->setText(QStringLiteral("stale"));
        model->setCurrentResourceSet(model->addResourceSet(QStringList()));
        QCOMPARE(firstButtons.at(0)->text(), QStringLiteral("stale"));
        CcTest::closeFormWindow(form);
    }

    void pageGroupFollowsPageSwitchesAndTitles()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(
                widgetXml("VoCc::DrawbackBoxGroup", "group",
                          widgetXml("QWidget", "p0") + widgetXml("QWidget", "p1")),
                QStringLiteral("<customwidget><class>VoCc::DrawbackBoxGroup</class>"
                               "<extends>QWidget</extends><addpagemethod>addPage</addpagemethod>"
                               "</customwidget>")));
        auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(formChild(form, "group"));
        QVERIFY(group);
        QCOMPARE(group->count(), 2);
        // Pages loaded through addPage are not managed yet; Designer selects managed widgets
        // only.
        form->manageWidget(group->widget(0));
        form->manageWidget(group->widget(1));
        QVERIFY(!form->cursor()->isWidgetSelected(group->widget(1)));
        group->setCurrentIndex(1);
        QVERIFY(form->cursor()->isWidgetSelected(group->widget(1)));
        QVERIFY(!form->cursor()->isWidgetSelected(group->widget(0)));

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

        // Outside any form (a preview) a page switch or a title edit selects nothing.
        QWidget holder;
        auto *preview = static_cast<VoCc::DrawbackBoxGroup *>(
                qobject_cast<QDesignerCustomWidgetInterface *>(
                        pluginObject("DrawbackBoxGroupPlugin"))
                        ->createWidget(&holder));
        preview->addPage(new QWidget);
        preview->addPage(new QWidget);
        preview->setCurrentIndex(1);
        preview->setPageTitle(QStringLiteral("x"));
        QCOMPARE(preview->currentIndex(), 1);
    }
};

QTEST_MAIN(TestWidgetPluginSlots)
#include "tst_widgetpluginslots.moc"
