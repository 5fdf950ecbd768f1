#include "designertestcore.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

#include <QDesignerContainerExtension>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerTaskMenuExtension>
#include <QExtensionFactory>
#include <QExtensionManager>
#include <QUndoStack>
#include <QtDesigner/private/qdesigner_command_p.h>
#include <QtDesigner/private/shared_enums_p.h>
#include <QtTest>

using namespace qdesigner_internal;

namespace {

QStringList debugLines;

void collectDebug(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg)
        debugLines << message;
}

QWidgetList pagesOf(const VoCc::DrawbackBoxGroup *group)
{
    QWidgetList pages;
    for (int i = 0; i < group->count(); ++i)
        pages << group->widget(i);
    return pages;
}

} // namespace

// The page group as a multi-page container, driven through Designer's extension manager and
// Designer's own page commands on a real form.
class TestContainerExtension : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)}); }

    void servesPageGroupsOnly()
    {
        QExtensionFactory *factory = nullptr;
        const QObjectList registered = CcTest::designerCore()->extensionManager()->children();
        for (QObject *child : registered) {
            if (child->inherits("DrawbackBoxGroupExtensionFactory"))
                factory = qobject_cast<QExtensionFactory *>(child);
        }
        QVERIFY(factory);
        VoCc::DrawbackBoxGroup group;
        QWidget plain;
        const QString container = QString(Q_TYPEID(QDesignerContainerExtension));
        QObject *extension = factory->extension(&group, container);
        QVERIFY(qobject_cast<QDesignerContainerExtension *>(extension));
        QCOMPARE(factory->extension(&group, container), extension); // one per group, kept
        QVERIFY(!factory->extension(&plain, container));
        QVERIFY(!factory->extension(&group, QString(Q_TYPEID(QDesignerTaskMenuExtension))));
        QVERIFY(!factory->extension(&group, QStringLiteral("com.trolltech.Qt.Designer.Container")));
    }

    void editsPagesOnAForm()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(
                QStringLiteral("<widget class=\"VoCc::DrawbackBoxGroup\" name=\"group\">"
                               "<widget class=\"QWidget\" name=\"page\"/></widget>"),
                QStringLiteral("<customwidget><class>VoCc::DrawbackBoxGroup</class>"
                               "<extends>QWidget</extends><addpagemethod>addPage</addpagemethod>"
                               "</customwidget>")));
        auto *group =
                form->mainContainer()->findChild<VoCc::DrawbackBoxGroup *>(QStringLiteral("group"));
        QVERIFY(group);
        auto *container = qt_extension<QDesignerContainerExtension *>(
                form->core()->extensionManager(), group);
        QVERIFY(container);
        QCOMPARE(container->count(), 1);
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
        debugLines.clear();
        QtMessageHandler previous = qInstallMessageHandler(collectDebug);
        auto *change = new ChangeCurrentPageCommand(form);
        change->init(group, 2);
        history->push(change);
        container->setCurrentIndex(2);
        qInstallMessageHandler(previous);
        QCOMPARE(container->currentIndex(), 2);
        QCOMPARE(debugLines.count(QStringLiteral(
                         "DrawbackBoxGroupContainerExtension::currentIndexChanged 2")),
                 2);

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
};

QTEST_MAIN(TestContainerExtension)
#include "tst_containerextension.moc"
