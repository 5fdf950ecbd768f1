#include "designertestcore.h"
#include "expectedwidgets.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcForm.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/CcPane.hpp>
#include <nui/CommonControls/template/CcOptionCheckBox.hpp>

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerWidgetBoxInterface>
#include <QDesignerWidgetDataBaseInterface>
#include <QLayout>
#include <QLibrary>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

using Expected::widgets;

// Loading the module into a real Designer: one collection, the 44 plug-ins in order, each
// with the identity, descriptions and default XML the widget box relies on.
class TestPluginLoading : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void loadsOneCollection();
    void pluginClassesHaveTheirOwnMetaObjects();
    void describesEachWidget_data();
    void describesEachWidget();
    void widgetBoxShowsBothGroups();
    void defaultXmlMakesTheWidget_data();
    void defaultXmlMakesTheWidget();

private:
    QObject *m_collection = nullptr;
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

void TestPluginLoading::initTestCase()
{
    CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
    QDesignerFormEditorInterface *core = CcTest::designerCore();
    QCOMPARE(core->pluginInstances().size(), 1);
    m_collection = core->pluginInstances().constFirst();
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
    QVERIFY(collection);
    m_widgets = collection->customWidgets();
}

void TestPluginLoading::loadsOneCollection()
{
    QCOMPARE(m_collection->metaObject()->className(), "CpPlugin");
    QCOMPARE(m_collection->metaObject()->superClass(), &QObject::staticMetaObject);
    QCOMPARE(m_collection->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());

    // The module's entry point hands out the very object Designer holds, every time.
    QLibrary module(QStringLiteral(CC_PLUGIN_MODULE));
    using InstanceFunction = QObject *(*)();
    auto instance = reinterpret_cast<InstanceFunction>(module.resolve("qt_plugin_instance"));
    QVERIFY(instance);
    QCOMPARE(instance(), m_collection);
    QCOMPARE(instance(), m_collection);

    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
    QCOMPARE(m_collection->qt_metacast(QDesignerCustomWidgetCollectionInterface_iid),
             static_cast<void *>(collection));
    QCOMPARE(m_collection->qt_metacast("QDesignerCustomWidgetCollectionInterface"),
             static_cast<void *>(collection));
    QCOMPARE(m_collection->qt_metacast("CpPlugin"), static_cast<void *>(m_collection));
    QVERIFY(!m_collection->qt_metacast(QDesignerCustomWidgetInterface_iid));
    QVERIFY(!m_collection->qt_metacast("com.trolltech.Qt.Designer.CustomWidgetCollection"));

    // The list is built once: the same plug-ins, in the same order, on every call.
    QCOMPARE(m_widgets.size(), Expected::count);
    QCOMPARE(collection->customWidgets(), m_widgets);
    QCOMPARE(QSet<QDesignerCustomWidgetInterface *>(m_widgets.begin(), m_widgets.end()).size(),
             Expected::count);
}

void TestPluginLoading::pluginClassesHaveTheirOwnMetaObjects()
{
    // The plug-ins are the collection's children, created in the widget box's order.
    const QObjectList plugins = m_collection->children();
    QCOMPARE(plugins.size(), Expected::count);
    for (int i = 0; i < Expected::count; ++i) {
        const Expected::Widget &expected = widgets[i];
        QObject *plugin = plugins.at(i);
        const QMetaObject *meta = plugin->metaObject();
        QCOMPARE(meta->className(), expected.plugin);
        QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
        QCOMPARE(plugin->qt_metacast(expected.plugin), static_cast<void *>(plugin));
        void *interface = m_widgets.at(i);
        QCOMPARE(plugin->qt_metacast(QDesignerCustomWidgetInterface_iid), interface);
        QCOMPARE(plugin->qt_metacast("QDesignerCustomWidgetInterface"), interface);
        QVERIFY(!plugin->qt_metacast(QDesignerCustomWidgetCollectionInterface_iid));
        QCOMPARE(meta->propertyCount(), meta->propertyOffset());
        QCOMPARE(meta->enumeratorCount(), meta->enumeratorOffset());
        QCOMPARE(meta->classInfoCount(), 0);

        QStringList methods;
        for (int m = meta->methodOffset(); m < meta->methodCount(); ++m) {
            const QMetaMethod method = meta->method(m);
            QCOMPARE(method.methodType(), QMetaMethod::Slot);
            QCOMPARE(method.access(), QMetaMethod::Private);
            QStringList names;
            for (const QByteArray &name : method.parameterNames())
                names << QString::fromLatin1(name);
            methods << QString::fromLatin1(method.methodSignature()) + QLatin1Char(' ')
                            + names.join(QLatin1Char(','));
        }
        QStringList expectedMethods;
        switch (expected.slotKind) {
        case Expected::NoSlots:
            break;
        case Expected::PropertySlot:
            expectedMethods << QStringLiteral("propertyChanged(QString,QVariant) ,");
            break;
        case Expected::MatrixSlots:
            expectedMethods << QStringLiteral("propertyChanged(QString,QVariant) ,")
                            << QStringLiteral("resourceSetActivated(QtResourceSet*,bool) "
                                              "resourceSet,resourceSetChanged");
            break;
        case Expected::PageSlots:
            expectedMethods << QStringLiteral("currentIndexChanged(int) index")
                            << QStringLiteral("pageTitleChanged(QString) title");
            break;
        }
        QCOMPARE(methods, expectedMethods);
    }
}

void TestPluginLoading::describesEachWidget_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Expected::count; ++i)
        QTest::newRow(widgets[i].plugin) << i;
}

void TestPluginLoading::describesEachWidget()
{
    QFETCH(int, index);
    const Expected::Widget &expected = widgets[index];
    QDesignerCustomWidgetInterface *plugin = m_widgets.at(index);
    const QByteArray pluginClass(expected.plugin);
    const bool pageGroup = pluginClass == "DrawbackBoxGroupPlugin";

    QCOMPARE(plugin->name(), QLatin1String(expected.name));
    QCOMPARE(plugin->group(),
             expected.templateGroup ? QStringLiteral("Tarn Template Widgets")
                                    : QStringLiteral("Tarn Widgets"));
    QCOMPARE(plugin->includeFile(), QLatin1String(expected.includeFile));
    QCOMPARE(plugin->isContainer(), expected.container);
    QCOMPARE(plugin->toolTip(),
             pluginClass == "PanePlugin" ? QStringLiteral("Tarn Collapsible Pane") : QString());
    // The page group answers with null texts, the others with empty ones.
    QCOMPARE(plugin->toolTip().isNull(), pageGroup);
    QVERIFY(plugin->whatsThis().isEmpty());
    QCOMPARE(plugin->whatsThis().isNull(), pageGroup);
    QVERIFY(plugin->icon().isNull());
    QVERIFY(plugin->codeTemplate().isEmpty());
    QVERIFY(plugin->isInitialized());

    const QString xml = plugin->domXml();
    if (expected.xml == Expected::Special)
        QCOMPARE(xml, Expected::specialXml(pluginClass));
    else
        QCOMPARE(xml, Expected::standardXml(expected));

    QDesignerWidgetDataBaseInterface *db = CcTest::designerCore()->widgetDataBase();
    const int dbIndex = db->indexOfClassName(plugin->name());
    QVERIFY(dbIndex >= 0);
    QCOMPARE(db->item(dbIndex)->group(), plugin->group());
    QCOMPARE(db->item(dbIndex)->isContainer(), expected.container);
    QCOMPARE(db->item(dbIndex)->includeFile(), plugin->includeFile());
}

void TestPluginLoading::widgetBoxShowsBothGroups()
{
    QDesignerWidgetBoxInterface *box = CcTest::designerCore()->widgetBox();
    QHash<QString, QStringList> groups;
    for (int c = 0; c < box->categoryCount(); ++c) {
        const QDesignerWidgetBoxInterface::Category category = box->category(c);
        for (int w = 0; w < category.widgetCount(); ++w)
            groups[category.name()] << category.widget(w).name();
    }
    QStringList templates, plain;
    for (const Expected::Widget &w : widgets)
        (w.templateGroup ? templates : plain) << QLatin1String(w.name);
    QCOMPARE(groups.value(QStringLiteral("Tarn Template Widgets")), templates);
    QCOMPARE(groups.value(QStringLiteral("Tarn Widgets")), plain);
}

void TestPluginLoading::defaultXmlMakesTheWidget_data() { describesEachWidget_data(); }

// Drops each widget from its default XML onto a form, as Designer's widget box does, and
// checks that the widget has exactly what the XML says.
void TestPluginLoading::defaultXmlMakesTheWidget()
{
    QFETCH(int, index);
    const Expected::Widget &expected = widgets[index];
    QString body = m_widgets.at(index)->domXml();
    QString customWidgets;
    if (body.startsWith(QLatin1String("<ui"))) {
        const QRegularExpression parts(
                QStringLiteral("(<widget .*</widget>)\\s*<customwidgets>(.*)</customwidgets>"),
                QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = parts.match(body);
        QVERIFY(match.hasMatch());
        body = match.captured(1) + QLatin1Char('\n');
        customWidgets = match.captured(2);
    }
    QDesignerFormWindowInterface *form =
            CcTest::createFormWindow(CcTest::formXml(body, customWidgets));
    QWidget *widget =
            form->mainContainer()->findChild<QWidget *>(QLatin1String(expected.objectName));
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), expected.name);

    const QByteArray pluginClass(expected.plugin);
    // Every default XML but the line's, the form's and the page group's gives an "id".
    const bool hasId = pluginClass != "LinePlugin" && pluginClass != "FormPlugin"
            && pluginClass != "DrawbackBoxGroupPlugin";
    QCOMPARE(widget->dynamicPropertyNames().contains("id"), hasId);
    if (hasId)
        QCOMPARE(widget->property("id").userType(), int(QMetaType::Int));

    if (pluginClass == "PanePlugin") {
        QCOMPARE(widget->size(), QSize(150, 100));
        QCOMPARE(widget->property("title").toString(), QStringLiteral("untitled"));
    } else if (pluginClass == "MatrixPopButtonsPlugin") {
        QCOMPARE(static_cast<VoCc::MatrixPopButtons *>(widget)->textList(),
                 QStringList({"item0", "item1", "item2", "item3"}));
    } else if (pluginClass == "OptionCheckBoxPlugin") {
        auto *options = static_cast<VoCc::OptionCheckBox *>(widget);
        QCOMPARE(options->textList(), QStringList({"Yes", "No"}));
        QCOMPARE(options->dataList(), QStringList({"1", "0"}));
    } else if (pluginClass == "DrawbackBoxGroupPlugin") {
        auto *group = static_cast<VoCc::DrawbackBoxGroup *>(widget);
        QCOMPARE(group->count(), 1);
        QCOMPARE(group->widget(0)->objectName(), QStringLiteral("page"));
        // Designer stands in its own class for a plain page; the form says QWidget.
        QVERIFY(form->contents().contains(
                QLatin1String("<widget class=\"QWidget\" name=\"page\"/>")));
    } else if (pluginClass == "FormPlugin") {
        QCOMPARE(widget->size(), QSize(275, 360));
        QCOMPARE(widget->property("mode").toInt(), int(VoCc::Form::Dockable));
        QVERIFY(widget->layout());
        QCOMPARE(widget->layout()->contentsMargins(), QMargins(2, 2, 2, 2));
        auto *group =
                widget->findChild<VoCc::DrawbackBoxGroup *>(QStringLiteral("drawbackBoxGroup"));
        QVERIFY(group);
        QCOMPARE(group->count(), 3);
        QCOMPARE(group->currentIndex(), 0);
        const QStringList titles = {"Required", "Optional", "Advanced"};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(group->widget(i)->objectName(), QStringLiteral("page_%1").arg(i));
            QCOMPARE(group->widget(i)->windowTitle(), titles.at(i));
        }
    }
    CcTest::closeFormWindow(form);
}

QTEST_MAIN(TestPluginLoading)
#include "tst_pluginloading.moc"
