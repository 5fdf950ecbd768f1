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

namespace {

QStringList debugLines;

void collectDebug(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg)
        debugLines << message;
}

const QString groupForm = CcTest::formXml(
        QStringLiteral("  <widget class=\"VoCc::DrawbackBoxGroup\" name=\"group\">\n"
                       "   <widget class=\"QWidget\" name=\"page\"/>\n"
                       "  </widget>\n"),
        QStringLiteral("  <customwidget>\n"
                       "   <class>VoCc::DrawbackBoxGroup</class>\n"
                       "   <extends>QWidget</extends>\n"
                       "   <addpagemethod>addPage</addpagemethod>\n"
                       "  </customwidget>\n"));

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
        QExtensionManager *manager = CcTest::designerCore()->extensionManager();
        QExtensionFactory *factory = nullptr;
        const QObjectList children = manager->children();
        for (QObject *child : children) {
            if (qstrcmp(child->metaObject()->className(), "DrawbackBoxGroupExtensionFactory")
                == 0) {
                QVERIFY(!factory);
                factory = qobject_cast<QExtensionFactory *>(child);
            }
        }
        QVERIFY(factory);
        QVERIFY(factory->qt_metacast("DrawbackBoxGroupExtensionFactory"));

        VoCc::DrawbackBoxGroup group;
        QWidget plain;
        const QString container = QString(Q_TYPEID(QDesignerContainerExtension));
        QObject *extension = factory->extension(&group, container);
        QVERIFY(extension);
        QCOMPARE(extension->metaObject()->className(), "DrawbackBoxGroupContainerExtension");
        QCOMPARE(extension->parent(), factory);
        // One extension per group, kept.
        QCOMPARE(factory->extension(&group, container), extension);
        auto *interface = qobject_cast<QDesignerContainerExtension *>(extension);
        QVERIFY(interface);
        QCOMPARE(extension->qt_metacast("QDesignerContainerExtension"),
                 static_cast<void *>(interface));
        QCOMPARE(extension->qt_metacast(QDesignerContainerExtension_iid),
                 static_cast<void *>(interface));

        QVERIFY(!factory->extension(&plain, container));
        QVERIFY(!factory->extension(&group, QString(Q_TYPEID(QDesignerTaskMenuExtension))));
        QVERIFY(!factory->extension(&group, QStringLiteral("com.trolltech.Qt.Designer.Container")));
        QVERIFY(!factory->extension(&group, container.toUpper()));
    }

    void editsPagesOnAForm()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(groupForm);
        auto *group =
                form->mainContainer()->findChild<VoCc::DrawbackBoxGroup *>(QStringLiteral("group"));
        QVERIFY(group);
        auto *container = qt_extension<QDesignerContainerExtension *>(
                form->core()->extensionManager(), group);
        QVERIFY(container);
        QCOMPARE(container->count(), 1);
        QCOMPARE(container->widget(0)->objectName(), QStringLiteral("page"));
        QCOMPARE(container->currentIndex(), 0);

        // Designer's "Insert Page" commands, undone and redone.
        QUndoStack *history = form->commandHistory();
        QWidget *added = nullptr;
        for (int i = 0; i < 2; ++i) {
            QWidgetList before;
            for (int p = 0; p < group->count(); ++p)
                before << group->widget(p);
            auto *add = new qdesigner_internal::AddContainerWidgetPageCommand(form);
            add->init(group, qdesigner_internal::PageContainer,
                      qdesigner_internal::AddContainerWidgetPageCommand::InsertAfter);
            history->push(add);
            for (int p = 0; p < group->count(); ++p) {
                if (!before.contains(group->widget(p)))
                    added = group->widget(p);
            }
        }
        QCOMPARE(group->count(), 3);
        QCOMPARE(container->count(), 3);
        QVERIFY(added);
        const int addedIndex = group->indexOf(added);
        history->undo();
        QCOMPARE(group->count(), 2);
        QCOMPARE(group->indexOf(added), -1);
        history->redo();
        QCOMPARE(group->count(), 3);
        QCOMPARE(group->indexOf(added), addedIndex);
        QWidget *third = group->widget(2);

        debugLines.clear();
        QtMessageHandler previous = qInstallMessageHandler(collectDebug);
        auto *change = new qdesigner_internal::ChangeCurrentPageCommand(form);
        change->init(group, 2);
        history->push(change);
        container->setCurrentIndex(2);
        qInstallMessageHandler(previous);
        QCOMPARE(group->currentIndex(), 2);
        QCOMPARE(container->currentIndex(), 2);
        // Every switch is traced, also one to the page already current.
        const QString trace =
                QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged 2");
        QCOMPARE(debugLines.count(trace), 2);

        auto *remove = new qdesigner_internal::DeleteContainerWidgetPageCommand(form);
        remove->init(group, qdesigner_internal::PageContainer);
        history->push(remove);
        QCOMPARE(group->count(), 2);
        QVERIFY(group->indexOf(third) < 0);
        history->undo();
        QCOMPARE(group->count(), 3);
        QCOMPARE(group->indexOf(third), 2);

        // The extension's own operations go straight to the group.
        QWidget *inserted = new QWidget;
        container->insertWidget(0, inserted);
        QCOMPARE(group->widget(0), inserted);
        QCOMPARE(container->widget(0), inserted);
        QWidget *appended = new QWidget;
        container->addWidget(appended);
        QCOMPARE(container->count(), 5);
        QCOMPARE(container->widget(4), appended);
        container->remove(0);
        QCOMPARE(container->count(), 4);
        QCOMPARE(group->indexOf(inserted), -1);

        // The saved form holds the pages the commands left.
        const QString saved = form->contents();
        QCOMPARE(saved.count(QLatin1String("<widget class=\"QWidget\" name=\"page")), 3);
        delete inserted;
        CcTest::closeFormWindow(form);
    }
};

QTEST_MAIN(TestContainerExtension)
#include "tst_containerextension.moc"
