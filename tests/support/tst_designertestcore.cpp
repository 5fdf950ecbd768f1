#include "designertestcore.h"

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerWidgetDataBaseInterface>
#include <QtTest>

// The test bed itself: a real Designer core that loads only the modules it is given.
class TestDesignerTestCore : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { CcTest::usePluginModulesOnly({QStringLiteral(CC_PROBE_PLUGIN)}); }

    void loadsOnlyTheGivenModule()
    {
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        const QObjectList instances = core->pluginInstances();
        QCOMPARE(instances.size(), 1);
        QCOMPARE(QByteArray(instances.first()->metaObject()->className()),
                 QByteArray("ProbePlugin"));
        QDesignerWidgetDataBaseInterface *db = core->widgetDataBase();
        const int index = db->indexOfClassName(QStringLiteral("ProbeWidget"));
        QVERIFY(index >= 0);
        QCOMPARE(db->item(index)->group(), QStringLiteral("Probe"));
        QVERIFY(db->item(index)->isCustom());
    }

    void formRoundTripKeepsThePluginWidget()
    {
        const QString ui = CcTest::formXml(QStringLiteral(
                "  <widget class=\"ProbeWidget\" name=\"probe\">\n"
                "   <property name=\"geometry\"><rect><x>10</x><y>20</y>"
                "<width>80</width><height>30</height></rect></property>\n"
                "  </widget>\n"));
        QDesignerFormWindowInterface *fw = CcTest::createFormWindow(ui);
        QVERIFY(fw->mainContainer());
        QWidget *probe = fw->mainContainer()->findChild<QWidget *>(QStringLiteral("probe"));
        QVERIFY(probe);
        QCOMPARE(probe->geometry(), QRect(10, 20, 80, 30));
        const QString saved = fw->contents();
        QVERIFY2(saved.contains(QStringLiteral("<widget class=\"ProbeWidget\" name=\"probe\">")),
                 qPrintable(saved));
        CcTest::closeFormWindow(fw);
    }
};

QTEST_MAIN(TestDesignerTestCore)
#include "tst_designertestcore.moc"
