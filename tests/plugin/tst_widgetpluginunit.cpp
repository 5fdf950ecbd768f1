#include "designertestcore.h"

#include <drawbackboxgroupextensionfactory.h>
#include <extrainfoextension.h>
#include <extrainfoextensionfactory.h>
#include <widgetpluginrow.h>

#include <QDesignerFormEditorInterface>
#include <QExtensionManager>
#include <QPushButton>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// The plug-ins' initialisation, linked directly into a Designer core that loaded no module,
// so that every registration seen here is the plug-in's own.
class TestWidgetPluginUnit : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { CcTest::usePluginModulesOnly({}); }

    void initialisationRegistersFactoriesOnce()
    {
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        QExtensionManager *manager = core->extensionManager();
        QVERIFY(core->pluginInstances().isEmpty());

        QObject owner;
        QWidget parent;
        QObjectList registered;
        for (int i = 0; i < widgetPluginCount(); ++i) {
            QDesignerCustomWidgetInterface *plugin = widgetPluginRows()[i].createPlugin(&owner);
            // A run-time form loader creates widgets without initialising the plug-in.
            QWidget *widget = plugin->createWidget(&parent);
            QCOMPARE(QLatin1String(widget->metaObject()->className()), plugin->name());
            QCOMPARE(widget->parentWidget(), &parent);

            const QObjectList before = manager->children();
            QVERIFY(!plugin->isInitialized());
            plugin->initialize(core);
            QVERIFY(plugin->isInitialized());
            for (QObject *child : manager->children()) {
                if (!before.contains(child))
                    registered << child;
            }
            // A second call registers nothing more.
            const int count = manager->children().size();
            plugin->initialize(core);
            QCOMPARE(manager->children().size(), count);
        }
        // One container factory and one extra-info factory, for all plug-ins together.
        QCOMPARE(registered.size(), 2);
        int containerFactories = 0;
        int extraInfoFactories = 0;
        for (QObject *factory : registered) {
            containerFactories += bool(qobject_cast<DrawbackBoxGroupExtensionFactory *>(factory));
            extraInfoFactories += bool(dynamic_cast<ExtraInfoExtensionFactory *>(factory));
        }
        QCOMPARE(containerFactories, 1);
        QCOMPARE(extraInfoFactories, 1);
        QPushButton button;
        auto *extension = qobject_cast<ExtraInfoExtension *>(
                manager->extension(&button, QLatin1String(QDesignerExtraInfoExtension_iid)));
        QVERIFY(extension);
        QCOMPARE(extension->core(), core);
    }
};

QTEST_MAIN(TestWidgetPluginUnit)
#include "tst_widgetpluginunit.moc"
