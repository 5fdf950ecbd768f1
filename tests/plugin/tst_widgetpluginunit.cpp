#include "designertestcore.h"

#include <drawbackboxgroupextensionfactory.h>
#include <extrainfoextension.h>
#include <extrainfoextensionfactory.h>
#include <widgetpluginrow.h>
#include <widgetplugins.h>

#include <QDesignerFormEditorInterface>
#include <QExtensionManager>
#include <QPushButton>
#include <QtTest>

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
        int containerFactories = 0;
        int extraInfoFactories = 0;
        for (int i = 0; i < widgetPluginCount(); ++i) {
            QDesignerCustomWidgetInterface *plugin = widgetPluginRows()[i].createPlugin(&owner);
            QVERIFY(!plugin->isInitialized());
            const QObjectList before = manager->children();
            plugin->initialize(core);
            QVERIFY(plugin->isInitialized());
            QObjectList added = manager->children();
            for (QObject *old : before)
                added.removeOne(old);

            const QString name = plugin->name();
            if (name == QLatin1String("VoCc::DrawbackBoxGroup")) {
                QCOMPARE(added.size(), 1);
                QVERIFY(qobject_cast<DrawbackBoxGroupExtensionFactory *>(added.first()));
                ++containerFactories;
            } else if (name == QLatin1String("VoCc::OptionCheckBox")) {
                QCOMPARE(added.size(), 1);
                auto *factory = dynamic_cast<ExtraInfoExtensionFactory *>(added.first());
                QVERIFY(factory);
                QCOMPARE(factory->core(), core);
                // No meta-object of its own.
                QCOMPARE(factory->metaObject(), &QExtensionFactory::staticMetaObject);
                ++extraInfoFactories;
            } else {
                QVERIFY2(added.isEmpty(), qPrintable(name));
            }

            // A second call registers nothing more.
            const int count = manager->children().size();
            plugin->initialize(core);
            QCOMPARE(manager->children().size(), count);
        }
        QCOMPARE(containerFactories, 1);
        QCOMPARE(extraInfoFactories, 1);

        // What the extra-info factory makes answers with the core it was registered with.
        QPushButton button;
        auto *extension = qobject_cast<ExtraInfoExtension *>(
                manager->extension(&button, QLatin1String(QDesignerExtraInfoExtension_iid)));
        QVERIFY(extension);
        QCOMPARE(extension->core(), core);
        QCOMPARE(extension->widget(), &button);
        QVERIFY(!extension->parent());
    }

    void widgetsAreMadeWithoutACore()
    {
        // A run-time loader creates widgets without initialising the plug-in first.
        ListViewPlugin listView;
        MatrixPushButtonsPlugin matrix;
        DrawbackBoxGroupPlugin group;
        QWidget parent;
        QWidget *created[] = {listView.createWidget(&parent), matrix.createWidget(&parent),
                              group.createWidget(&parent)};
        QCOMPARE(created[0]->metaObject()->className(), "VoCc::ListView");
        QCOMPARE(created[1]->metaObject()->className(), "VoCc::MatrixPushButtons");
        QCOMPARE(created[2]->metaObject()->className(), "VoCc::DrawbackBoxGroup");
        for (QWidget *widget : created)
            QCOMPARE(widget->parentWidget(), &parent);
    }
};

QTEST_MAIN(TestWidgetPluginUnit)
#include "tst_widgetpluginunit.moc"
