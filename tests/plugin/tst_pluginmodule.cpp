#include "qtcompat.h"

#include "designertestcore.h"

#include <widgetpluginrow.h>

#include <QtDesigner>
#include <QtTest>

// The module as a plug-in loader sees it, without Designer: the loader may delete the root
// object, and asking again then builds a fresh collection. And the plug-ins' initialisation,
// linked directly into a Designer core that loaded no module, so that every registration
// seen here is the plug-in's own.
class TestPluginModule : public QObject
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
        QStringList factories; // the classes of the factories registered, in order
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
                    factories << QLatin1String(child->metaObject()->className());
            }
            // A second call registers nothing more.
            const int count = manager->children().size();
            plugin->initialize(core);
            QCOMPARE(manager->children().size(), count);
        }
        // Each factory once, in the widget box's order; the page group's container factory
        // before its task menu. The extra-info factory has no meta-object of its own.
        QCOMPARE(factories,
                 QStringList({"OptionButtonsFactory", "QExtensionFactory", "OptionComboFactory",
                              "OptionRadiosFactory", "CheckComboFactory", "ComboBoxFactory",
                              "DrawbackBoxGroupExtensionFactory", "DrawbackBoxFactory",
                              "MatrixCheckBoxesFactory", "MatrixPopButtonsFactory",
                              "MatrixPushButtonsFactory", "MatrixRadioButtonsFactory"}));
    }

    void deletingTheCollectionDeletesEachPluginOnce()
    {
        QPluginLoader loader(QStringLiteral(CC_PLUGIN_MODULE));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        QPointer<QObject> first = loader.instance();
        QVERIFY(first);
        int destroyed = 0;
        for (QObject *plugin : first->children())
            connect(plugin, &QObject::destroyed, this, [&destroyed] { ++destroyed; });
        delete first.data();
        QCOMPARE(destroyed, 44);

        auto *fresh = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
        QVERIFY(fresh);
        QCOMPARE(fresh->customWidgets().size(), 44);
    }

    void exportsOnlyItsEntryPoints()
    {
        // Designer links its own classes of similar names; nothing of ours may be visible.
        QLibrary module(QStringLiteral(CC_PLUGIN_MODULE));
        QVERIFY(module.resolve("qt_plugin_instance"));
        QVERIFY(module.resolve(CcQt::pluginMetaDataFunction));
        const char *internals[] = {"_ZTV11AnglePlugin", "_ZN8CpPlugin16staticMetaObjectE",
                                   "_ZTV34DrawbackBoxGroupContainerExtension",
                                   "_ZTV18ExtraInfoExtension", "_Z16widgetPluginRowsv"};
        for (const char *symbol : internals)
            QVERIFY2(!module.resolve(symbol), symbol);
#ifndef CC_EXTERNAL_QTPROPERTYBROWSER
        // Nor its copy of the property browser, whose classes Designer's own components also
        // have: a plug-in's and Designer's would be taken for each other.
        for (const char *symbol :
             {"_ZN24QtVariantPropertyManager10enumTypeIdEv",
              "_ZN21QtTreePropertyBrowser16staticMetaObjectE", "_ZN10QtPropertyD2Ev"})
            QVERIFY2(!module.resolve(symbol), symbol);
#endif
    }
};

QTEST_MAIN(TestPluginModule)
#include "tst_pluginmodule.moc"
