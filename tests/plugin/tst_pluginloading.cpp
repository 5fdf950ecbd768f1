#include "designertestcore.h"

#include <nui/CommonControls/CcForm.hpp>
#include <nui/CommonControls/template/CcAbstractOptions.hpp>

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerWidgetBoxInterface>
#include <QFile>
#include <QLibrary>
#include <QRegularExpression>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace {

enum DefaultXml { Lf, NoLf, Special };

// What the widget box must show for each plug-in, in the collection's order, written down
// independently of the plug-in's own table. A special default text is in data/<name>.xml.
struct Widget
{
    const char *name; // after "VoCc::"
    bool templateGroup;
    const char *includeFile; // after "nui/CommonControls/"
    bool container;
    DefaultXml xml;
    const char *objectName; // of the standard default text
};

// clang-format off
constexpr Widget widgets[] = {
    {"Angle", true, "Template/CcAngle.hpp", false, Lf, "Angle"},
    {"CmdButton", true, "Template/CcCmdButton.hpp", false, Lf, "CmdButton"},
    {"Color", true, "Template/CcColor.hpp", false, Lf, "Color"},
    {"ColorTransfer", true, "Template/ColorTransfer.hpp", false, Lf, "ColorTransfer"},
    {"Distance", true, "Template/CcDistance.hpp", false, Lf, "Distance"},
    {"Entity", true, "Template/CcEntity.hpp", false, Lf, "Entity"},
    {"EntityList", true, "Template/CcEntityList.hpp", false, Lf, "EntityList"},
    {"PinEntity", true, "Template/CcPinEntity.hpp", false, Lf, "PinEntity"},
    {"PinEntityList", true, "Template/CcPinEntityList.hpp", false, Lf, "PinEntityList"},
    {"FormProxy", false, "CcFormProxy.hpp", false, Lf, "formProxy"},
    {"Number", true, "Template/CcNumber.hpp", false, Lf, "Number"},
    {"OptionButtons", true, "template/CcOptionButtons.hpp", false, Lf, "OptionButtons"},
    {"OptionCheckBox", true, "template/CcOptionCheckBox.hpp", false, Special, nullptr},
    {"OptionComboBox", true, "template/CcOptionComboBox.hpp", false, Lf, "OptionComboBox"},
    {"OptionRadios", true, "template/CcOptionRadios.hpp", false, Lf, "OptionRadios"},
    {"Point", true, "Template/CcPoint.hpp", false, Lf, "Point"},
    {"Slider", true, "Template/CcSlider.hpp", false, Lf, "Slider"},
    {"String", true, "Template/CcString.hpp", false, Lf, "String"},
    {"Window", true, "Template/CcWindow.hpp", false, Lf, "Window"},
    {"CheckableTextComboBox", false, "CcLineEditEx.hpp", false, Lf, "checkableTextComboBox"},
    {"ColorButton", false, "CcColorButton.hpp", false, Lf, "colorButton"},
    {"ColorPanel", false, "CcColorPanel.hpp", false, Lf, "colorPanel"},
    {"ColorPicker", false, "CcColorPicker.hpp", false, Lf, "colorPicker"},
    {"ComboBox", false, "CcComboBox.hpp", false, Lf, "comboBox"},
    {"DrawbackBoxGroup", false, "CcDrawbackBoxGroup.hpp", true, Special, nullptr},
    {"Form", false, "CcForm.hpp", true, Special, nullptr},
    {"Line", false, "CcLine.hpp", false, Special, nullptr},
    {"LineEditBtn", false, "CcLineEditEx.hpp", false, NoLf, "lineEditBtn"},
    {"LineEditEx", false, "CcLineEditEx.hpp", false, NoLf, "lineEditEx"},
    {"LineType", false, "CcLineType.hpp", false, Lf, "lineType"},
    {"LineWidth", false, "CcLineWidth.hpp", false, Lf, "lineWidth"},
    {"ListView", false, "CcListView.hpp", false, NoLf, "listView"},
    {"ListWidget", false, "CcListWidget.hpp", false, NoLf, "listWidget"},
    {"MatrixCheckBoxes", false, "CcMatrixButtons.hpp", false, Lf, "matrixCheckBoxes"},
    {"MatrixPopButtons", false, "CcMatrixPopButtons.hpp", false, Special, nullptr},
    {"MatrixPushButtons", false, "CcMatrixButtons.hpp", false, Lf, "matrixPushButtons"},
    {"MatrixRadioButtons", false, "CcMatrixButtons.hpp", false, Lf, "matrixRadioButtons"},
    {"Pane", false, "CcPane.hpp", true, Special, nullptr},
    {"RealNumberEdit", false, "CcRealNumberEdit.hpp", false, Lf, "realNumberEdit"},
    {"RealNumberSlider", false, "CcRealNumber.hpp", false, NoLf, "realNumberSlider"},
    {"SelectList", false, "CcSelectList.hpp", false, NoLf, "selectList"},
    {"TableWidget", false, "CcTableWidget.hpp", false, NoLf, "tableWidget"},
    {"TextEdit", false, "CcTextEdit.hpp", false, Lf, "TextEdit"},
    {"TreeView", false, "CcTreeView.hpp", false, NoLf, "treeView"},
};
// clang-format on
constexpr int widgetCount = int(std::size(widgets));

QString className(const Widget &w) { return QLatin1String("VoCc::") + QLatin1String(w.name); }

QString expectedXml(const Widget &w)
{
    if (w.xml == Special) {
        QFile file(QStringLiteral(CC_PLUGIN_TEST_DATA "/%1.xml").arg(QLatin1String(w.name)));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    return QStringLiteral("<widget class=\"%1\" name=\"%2\">\n"
                          " <property name=\"id\" stdset=\"0\">\n"
                          "  <number></number>\n"
                          " </property>\n"
                          "</widget>%3")
            .arg(className(w), QLatin1String(w.objectName),
                 w.xml == Lf ? QStringLiteral("\n") : QString());
}

// A property as the form shows it; the option widgets' entries are not properties.
QVariant readBack(QObject *object, const QString &property)
{
    if (auto *options = qobject_cast<VoCc::AbstractOptions *>(object)) {
        if (property == QLatin1String("textList"))
            return options->textList();
        if (property == QLatin1String("dataList"))
            return options->dataList();
    }
    return object->property(property.toLatin1());
}

} // namespace

// Loading the module into a real Designer: one collection, the 44 plug-ins in order, each
// with the descriptions and default XML the widget box relies on.
class TestPluginLoading : public QObject
{
    Q_OBJECT
    QObject *m_collection = nullptr;
    QList<QDesignerCustomWidgetInterface *> m_widgets;

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

    void loadsOneCollection()
    {
        // The module's entry point hands out the very object Designer holds, every time.
        QLibrary module(QStringLiteral(CC_PLUGIN_MODULE));
        auto instance = reinterpret_cast<QObject *(*)()>(module.resolve("qt_plugin_instance"));
        QVERIFY(instance);
        QCOMPARE(instance(), m_collection);
        QCOMPARE(instance(), m_collection);
        QCOMPARE(m_collection->metaObject()->className(), "CpPlugin");
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection);
        QCOMPARE(m_collection->qt_metacast(QDesignerCustomWidgetCollectionInterface_iid),
                 static_cast<void *>(collection));
        QVERIFY(!m_collection->qt_metacast(QDesignerCustomWidgetInterface_iid));

        // The same 44 plug-ins in the same order on every call, the collection's children.
        QCOMPARE(m_widgets.size(), widgetCount);
        QCOMPARE(collection->customWidgets(), m_widgets);
        const QObjectList plugins = m_collection->children();
        QCOMPARE(plugins.size(), widgetCount);
        QStringList templateGroup, plainGroup;
        for (int i = 0; i < widgetCount; ++i) {
            QCOMPARE(QLatin1String(plugins.at(i)->metaObject()->className()),
                     QLatin1String(widgets[i].name) + QLatin1String("Plugin"));
            QCOMPARE(plugins.at(i)->qt_metacast(QDesignerCustomWidgetInterface_iid),
                     static_cast<void *>(m_widgets.at(i)));
            (widgets[i].templateGroup ? templateGroup : plainGroup) << className(widgets[i]);
        }

        // Designer's widget box shows them in two groups, in that order.
        QDesignerWidgetBoxInterface *box = CcTest::designerCore()->widgetBox();
        QHash<QString, QStringList> shown;
        for (int c = 0; c < box->categoryCount(); ++c) {
            for (int w = 0; w < box->category(c).widgetCount(); ++w)
                shown[box->category(c).name()] << box->category(c).widget(w).name();
        }
        QCOMPARE(shown.value(QStringLiteral("Tarn Template Widgets")), templateGroup);
        QCOMPARE(shown.value(QStringLiteral("Tarn Widgets")), plainGroup);
    }

    void eachWidget_data()
    {
        QTest::addColumn<int>("index");
        // "object.property" -> value, for what the special default texts set.
        QTest::addColumn<QVariantMap>("expected");
        const QHash<QByteArray, QVariantMap> set = {
                {"Pane", {{"pane.size", QSize(150, 100)}, {"pane.title", "untitled"}}},
                {"MatrixPopButtons",
                 {{"matrixPopButtons.textList",
                   QStringList({"item0", "item1", "item2", "item3"})}}},
                {"OptionCheckBox",
                 {{"OptionCheckBox.textList", QStringList({"Yes", "No"})},
                  {"OptionCheckBox.dataList", QStringList({"1", "0"})}}},
                {"Form",
                 {{"form.size", QSize(275, 360)},
                  {"form.mode", int(VoCc::Form::Dockable)},
                  {"verticalLayout.margin", 2},
                  {"drawbackBoxGroup.currentIndex", 0},
                  {"page_0.windowTitle", "Required"},
                  {"page_1.windowTitle", "Optional"},
                  {"page_2.windowTitle", "Advanced"}}},
        };
        for (int i = 0; i < widgetCount; ++i)
            QTest::newRow(widgets[i].name) << i << set.value(widgets[i].name);
    }

    // The descriptions the widget box shows; then the widget dropped from its default XML onto a
    // form, as the widget box does, has what the XML says, and Designer saves every element back.
    void eachWidget()
    {
        QFETCH(int, index);
        QFETCH(QVariantMap, expected);
        const Widget &w = widgets[index];
        QDesignerCustomWidgetInterface *plugin = m_widgets.at(index);
        const QString name = className(w);
        QCOMPARE(plugin->name(), name);
        QCOMPARE(plugin->group(),
                 w.templateGroup ? QStringLiteral("Tarn Template Widgets")
                                 : QStringLiteral("Tarn Widgets"));
        QCOMPARE(plugin->includeFile(),
                 QLatin1String("nui/CommonControls/") + QLatin1String(w.includeFile));
        QCOMPARE(plugin->isContainer(), w.container);
        QCOMPARE(plugin->toolTip(),
                 name == QLatin1String("VoCc::Pane") ? QStringLiteral("Tarn Collapsible Pane")
                                                     : QString());
        // The page group answers with a null text, the others with an empty one.
        QCOMPARE(plugin->toolTip().isNull(), name == QLatin1String("VoCc::DrawbackBoxGroup"));
        QString body = plugin->domXml();
        QCOMPARE(body, expectedXml(w));

        QString customWidgets;
        if (body.startsWith(QLatin1String("<ui"))) {
            const QRegularExpressionMatch parts =
                    QRegularExpression(QStringLiteral("(<widget .*</widget>)\\s*<customwidgets>"
                                                      "(.*)</customwidgets>"),
                                       QRegularExpression::DotMatchesEverythingOption)
                            .match(body);
            QVERIFY(parts.hasMatch());
            body = parts.captured(1) + QLatin1Char('\n');
            customWidgets = parts.captured(2);
        }
        QDesignerFormWindowInterface *form =
                CcTest::createFormWindow(CcTest::formXml(body, customWidgets));
        const QString saved = form->contents();
        QRegularExpressionMatchIterator elements =
                QRegularExpression(QStringLiteral("<widget class=\"([^\"]+)\" name=\"([^\"]+)\""))
                        .globalMatch(body);
        const QRegularExpressionMatch top = elements.peekNext();
        while (elements.hasNext())
            QVERIFY2(saved.contains(elements.next().captured(0)), qPrintable(saved));
        QWidget *widget = form->mainContainer()->findChild<QWidget *>(top.captured(2));
        QVERIFY(widget);
        QCOMPARE(QLatin1String(widget->metaObject()->className()), name);
        QCOMPARE(widget->dynamicPropertyNames().contains("id"),
                 body.contains(QLatin1String("<property name=\"id\"")));
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            const QStringList path = it.key().split(QLatin1Char('.'));
            QObject *object = form->mainContainer()->findChild<QObject *>(path.at(0));
            QVERIFY2(object, qPrintable(it.key()));
            QVariant actual = readBack(object, path.at(1));
            QVERIFY(actual.convert(it.value().userType()));
            QCOMPARE(actual, it.value());
        }
        CcTest::closeFormWindow(form);
    }
};

QTEST_MAIN(TestPluginLoading)
#include "tst_pluginloading.moc"
