#include "designertestcore.h"

#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>

#include <QAction>
#include <QDesignerExtraInfoExtension>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QExtensionFactory>
#include <QExtensionManager>
#include <QLayout>
#include <QPushButton>
#include <QXmlStreamWriter>
#include <QtDesigner/private/ui4_p.h>
#include <QtTest>

namespace {

QString domText(DomUI &ui)
{
    QString text;
    QXmlStreamWriter writer(&text);
    ui.write(writer);
    return text;
}

// A form with entries in the list-like widgets, a plain Qt button, a layout and an action.
const QString formWithEntries = CcTest::formXml(QStringLiteral(
        "  <action name=\"openAction\">\n"
        "   <property name=\"text\"><string>Open</string></property>\n"
        "  </action>\n"
        "  <widget class=\"QWidget\" name=\"holder\">\n"
        "   <property name=\"geometry\"><rect><x>0</x><y>0</y><width>300</width>"
        "<height>200</height></rect></property>\n"
        "   <layout class=\"QVBoxLayout\" name=\"column\">\n"
        "    <item>\n"
        "     <widget class=\"VoCc::OptionButtons\" name=\"options\">\n"
        "      <item>\n"
        "       <property name=\"text\"><string>Left</string></property>\n"
        "       <property name=\"data\"><string notr=\"true\">L</string></property>\n"
        "      </item>\n"
        "      <item>\n"
        "       <property name=\"text\"><string>Right</string></property>\n"
        "       <property name=\"toolTip\"><string>To the right</string></property>\n"
        "       <property name=\"data\"><string notr=\"true\">R</string></property>\n"
        "      </item>\n"
        "     </widget>\n"
        "    </item>\n"
        "    <item>\n"
        "     <widget class=\"QPushButton\" name=\"button\"/>\n"
        "    </item>\n"
        "   </layout>\n"
        "  </widget>\n"
        "  <widget class=\"VoCc::MatrixPushButtons\" name=\"matrix\">\n"
        "   <property name=\"row\"><number>1</number></property>\n"
        "   <property name=\"column\"><number>3</number></property>\n"
        "   <item>\n"
        "    <property name=\"text\"><string>a</string></property>\n"
        "    <property name=\"action\"><string notr=\"true\">doA</string></property>\n"
        "   </item>\n"
        "   <item>\n"
        "    <property name=\"text\"><string>b</string></property>\n"
        "   </item>\n"
        "  </widget>\n"
        "  <widget class=\"VoCc::OptionCheckBox\" name=\"yesNo\"/>\n"));

} // namespace

// Every widget's extra data goes through the widget library's form builder, on save and on
// load, in a real Designer.
class TestExtraInfo : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)}); }

    void everyWidgetOnAFormHasTheExtension()
    {
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        QExtensionManager *manager = core->extensionManager();
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(formWithEntries);
        QWidget *main = form->mainContainer();
        QList<QWidget *> widgets = main->findChildren<QWidget *>();
        widgets.prepend(main);
        int served = 0;
        for (QWidget *widget : widgets) {
            if (!form->isManaged(widget))
                continue;
            auto *extension = qt_extension<QDesignerExtraInfoExtension *>(manager, widget);
            QVERIFY2(extension, qPrintable(widget->objectName()));
            QObject *object =
                    manager->extension(widget, QString(Q_TYPEID(QDesignerExtraInfoExtension)));
            QCOMPARE(object->metaObject()->className(), "ExtraInfoExtension");
            QCOMPARE(object->qt_metacast("QDesignerExtraInfoExtension"),
                     static_cast<void *>(extension));
            QVERIFY(!object->parent());
            QCOMPARE(extension->widget(), widget);
            QCOMPARE(extension->core(), core);
            // Served again from the factory's cache.
            QCOMPARE(qt_extension<QDesignerExtraInfoExtension *>(manager, widget), extension);
            ++served;
        }
        QCOMPARE(served, 6); // Form, holder, options, button, matrix, yesNo

        // An action and a layout are not widgets: no extension.
        auto *action = main->findChild<QAction *>(QStringLiteral("openAction"));
        QVERIFY(action);
        QVERIFY(!qt_extension<QDesignerExtraInfoExtension *>(manager, action));
        QLayout *layout = main->findChild<QLayout *>(QStringLiteral("column"));
        QVERIFY(layout);
        QVERIFY(!qt_extension<QDesignerExtraInfoExtension *>(manager, layout));

        // Only the exact Qt 5 identifier is served.
        auto *button = main->findChild<QPushButton *>(QStringLiteral("button"));
        QVERIFY(!manager->extension(button,
                                    QStringLiteral("org.qt-project.Qt.Designer.ExtraInfo")));
        QVERIFY(!manager->extension(button,
                                    QStringLiteral("org.qt-project.qt.designer.extrainfo.2")));
        QVERIFY(!manager->extension(button,
                                    QStringLiteral("com.trolltech.Qt.Designer.ExtraInfo.2")));

        // The form-level hooks leave the document alone.
        auto *extension = qt_extension<QDesignerExtraInfoExtension *>(manager, button);
        DomUI ui;
        ui.setElementClass(QStringLiteral("Form"));
        const QString before = domText(ui);
        QVERIFY(extension->saveUiExtraInfo(&ui));
        QVERIFY(extension->loadUiExtraInfo(&ui));
        QCOMPARE(domText(ui), before);
        CcTest::closeFormWindow(form);
    }

    void entriesSurviveSaveAndLoad()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(formWithEntries);
        QWidget *main = form->mainContainer();
        // Loading went through the form builder: Designer itself ignores these items.
        auto *options = main->findChild<VoCc::OptionButtons *>(QStringLiteral("options"));
        QVERIFY(options);
        QCOMPARE(options->textList(), QStringList({"Left", "Right"}));
        QCOMPARE(options->dataList(), QStringList({"L", "R"}));
        QCOMPARE(options->toolTips().value(1), QStringLiteral("To the right"));
        auto *matrix = main->findChild<VoCc::AbstractMatrixOptions *>(QStringLiteral("matrix"));
        QVERIFY(matrix);
        QCOMPARE(matrix->column(), 3);
        QCOMPARE(matrix->textList().mid(0, 2), QStringList({"a", "b"}));
        QCOMPARE(matrix->actionList().value(0), QStringLiteral("doA"));

        const QString first = form->contents();
        QVERIFY2(first.contains(QLatin1String("<string notr=\"true\">R</string>")),
                 qPrintable(first));
        QVERIFY(first.contains(QLatin1String("<string notr=\"false\">To the right</string>")));
        QVERIFY(first.contains(QLatin1String("<string notr=\"true\">doA</string>")));

        // contents() -> setContents() -> contents() gives the same text, with nothing doubled.
        QDesignerFormWindowInterface *second = CcTest::createFormWindow(first);
        const QString again = second->contents();
        QCOMPARE(again, first);
        QVERIFY(second->setContents(again));
        QCOMPARE(second->contents(), first);
        CcTest::closeFormWindow(second);
        CcTest::closeFormWindow(form);
    }
};

QTEST_MAIN(TestExtraInfo)
#include "tst_extrainfo.moc"
