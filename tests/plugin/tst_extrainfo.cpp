#include "designertestcore.h"

#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>

#include <QAction>
#include <QDesignerExtraInfoExtension>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QExtensionManager>
#include <QLayout>
#include <QtTest>

namespace {

// Entries in two list-like widgets, next to a plain Qt button, a layout and an action.
const QString formWithEntries = CcTest::formXml(QStringLiteral(
        "<action name=\"openAction\"/>"
        "<widget class=\"QWidget\" name=\"holder\"><layout class=\"QVBoxLayout\" name=\"column\">"
        " <item><widget class=\"VoCc::OptionButtons\" name=\"options\">"
        "  <item><property name=\"text\"><string>Left</string></property>"
        "   <property name=\"data\"><string notr=\"true\">L</string></property></item>"
        "  <item><property name=\"text\"><string>Right</string></property>"
        "   <property name=\"toolTip\"><string>To the right</string></property>"
        "   <property name=\"data\"><string notr=\"true\">R</string></property></item>"
        " </widget></item>"
        " <item><widget class=\"QPushButton\" name=\"button\"/></item>"
        "</layout></widget>"
        "<widget class=\"VoCc::MatrixPushButtons\" name=\"matrix\">"
        " <property name=\"column\"><number>3</number></property>"
        " <item><property name=\"text\"><string>a</string></property>"
        "  <property name=\"action\"><string notr=\"true\">doA</string></property></item>"
        "</widget>"));

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
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(formWithEntries);
        QWidget *main = form->mainContainer();
        QList<QWidget *> widgets = main->findChildren<QWidget *>();
        widgets.prepend(main);
        QStringList served;
        for (QWidget *widget : widgets) {
            if (!form->isManaged(widget))
                continue;
            auto *extension =
                    qt_extension<QDesignerExtraInfoExtension *>(core->extensionManager(), widget);
            QVERIFY2(extension, qPrintable(widget->objectName()));
            QCOMPARE(extension->widget(), widget);
            QCOMPARE(extension->core(), core);
            served << widget->objectName();
        }
        QCOMPARE(served.size(), 5); // Form, holder, options, button, matrix

        // An action and a layout are not widgets.
        QVERIFY(!qt_extension<QDesignerExtraInfoExtension *>(
                core->extensionManager(),
                main->findChild<QAction *>(QStringLiteral("openAction"))));
        QVERIFY(!qt_extension<QDesignerExtraInfoExtension *>(
                core->extensionManager(), main->findChild<QLayout *>(QStringLiteral("column"))));
        CcTest::closeFormWindow(form);
    }

    void entriesSurviveSaveAndLoad()
    {
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(formWithEntries);
        // Loading went through the form builder: Designer itself ignores these items.
        auto *options =
                form->mainContainer()->findChild<VoCc::OptionButtons *>(QStringLiteral("options"));
        QVERIFY(options);
        QCOMPARE(options->dataList(), QStringList({"L", "R"}));
        QCOMPARE(options->toolTips().value(1), QStringLiteral("To the right"));
        auto *matrix = form->mainContainer()->findChild<VoCc::AbstractMatrixOptions *>(
                QStringLiteral("matrix"));
        QVERIFY(matrix);
        QCOMPARE(matrix->actionList().value(0), QStringLiteral("doA"));

        // Saving went through it too, and contents() -> setContents() -> contents() gives the
        // same text, with nothing doubled.
        const QString first = form->contents();
        QVERIFY2(first.contains(QLatin1String("<string notr=\"true\">R</string>")),
                 qPrintable(first));
        QVERIFY(first.contains(QLatin1String("<string notr=\"true\">doA</string>")));
        QDesignerFormWindowInterface *second = CcTest::createFormWindow(first);
        QCOMPARE(second->contents(), first);
        QVERIFY(second->setContents(second->contents()));
        QCOMPARE(second->contents(), first);
        CcTest::closeFormWindow(second);
        CcTest::closeFormWindow(form);
    }
};

QTEST_MAIN(TestExtraInfo)
#include "tst_extrainfo.moc"
