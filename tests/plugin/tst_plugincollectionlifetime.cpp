#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// The collection's life as a plug-in loader sees it, without a Designer core: the loader may
// delete the root object, and asking again then builds a fresh collection.
class TestPluginCollectionLifetime : public QObject
{
    Q_OBJECT
private slots:
    void deletingTheCollectionDeletesEachPluginOnce()
    {
        QPluginLoader loader(QStringLiteral(CC_PLUGIN_MODULE));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        QPointer<QObject> first = loader.instance();
        QVERIFY(first);
        const QObjectList plugins = first->children();
        QCOMPARE(plugins.size(), 44);
        QHash<QObject *, int> destroyed;
        for (QObject *plugin : plugins)
            connect(plugin, &QObject::destroyed, this,
                    [&](QObject *object) { ++destroyed[object]; });
        delete first.data();
        QCOMPARE(destroyed.size(), 44);
        for (QObject *plugin : plugins)
            QCOMPARE(destroyed.value(plugin), 1);

        QObject *second = loader.instance();
        QVERIFY(second);
        auto *fresh = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(second);
        QVERIFY(fresh);
        QCOMPARE(fresh->customWidgets().size(), 44);
    }

    void exportsOnlyItsEntryPoints()
    {
        // Designer links its own classes of similar names; nothing of ours may be visible.
        QLibrary module(QStringLiteral(CC_PLUGIN_MODULE));
        QVERIFY(module.resolve("qt_plugin_instance"));
        QVERIFY(module.resolve("qt_plugin_query_metadata"));
        const char *internals[] = {"_ZTV11AnglePlugin", "_ZN8CpPlugin16staticMetaObjectE",
                                   "_ZTV34DrawbackBoxGroupContainerExtension",
                                   "_ZTV18ExtraInfoExtension", "_Z16widgetPluginRowsv"};
        for (const char *symbol : internals)
            QVERIFY2(!module.resolve(symbol), symbol);
    }
};

QTEST_MAIN(TestPluginCollectionLifetime)
#include "tst_plugincollectionlifetime.moc"
