// A long Designer session: many forms holding all of our widgets, each opened, edited and
// closed in one core. Every QObject made meanwhile is tracked through Qt's object hooks; an
// object is ours when its class comes from the plug-in module or the widget library, told by
// the shared object that holds its type information. Once every form is closed, nothing of
// ours may be left but the collection, its plug-ins and the extension factories.

#include "designertestcore.h"
#include "itemdialogdriver.h"
#include "modalanswer.h"

#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QtDesigner>
#include <QtTest>
#include <QtCore/private/qhooks_p.h>

#include <dlfcn.h>

#include <typeinfo>

namespace {

// In data rows of 10 forms, each checked on its own, so that no row nears QtTest's time limit.
// CC_LONG_SESSION_FORMS sets how many forms (default 200).
const int formsPerRow = 10;

QMutex trackedLock;
QSet<QObject *> tracked;
quintptr previousAdd = 0;
quintptr previousRemove = 0;

void objectAdded(QObject *object)
{
    {
        // Not held while the earlier hook runs: it may make objects of its own.
        QMutexLocker locker(&trackedLock);
        tracked.insert(object);
    }
    if (previousAdd)
        reinterpret_cast<QHooks::AddQObjectCallback>(previousAdd)(object);
}

void objectRemoved(QObject *object)
{
    {
        QMutexLocker locker(&trackedLock);
        tracked.remove(object);
    }
    if (previousRemove)
        reinterpret_cast<QHooks::RemoveQObjectCallback>(previousRemove)(object);
}

const void *sharedObjectOf(const void *address)
{
    Dl_info info {};
    return dladdr(address, &info) ? info.dli_fbase : nullptr;
}

QMap<QString, int> countsByClass(const QObjectList &objects)
{
    QMap<QString, int> counts;
    for (const QObject *object : objects)
        ++counts[QLatin1String(object->metaObject()->className())];
    return counts;
}

using Driver = CcTest::ItemDialogDriver;

} // namespace

class TestLongSession : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // Tracking starts before the core exists, so the plug-ins and factories are seen too.
        previousAdd = qtHookData[QHooks::AddQObject];
        previousRemove = qtHookData[QHooks::RemoveQObject];
        qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&objectAdded);
        qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&objectRemoved);

        CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(CcTest::designerCore());
        QFile file(QStringLiteral(CC_EXAMPLE_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_formXml = QString::fromUtf8(file.readAll());

        QObject *collection = QPluginLoader(QStringLiteral(CC_PLUGIN_MODULE)).instance();
        QVERIFY(collection);
        m_module = sharedObjectOf(&typeid(*collection));
        m_library = sharedObjectOf(&VoCc::ComboBox::staticMetaObject);
        QVERIFY(m_module);
        QVERIFY(m_library);
        QVERIFY(m_module != m_library);
    }

    void cleanupTestCase()
    {
        qtHookData[QHooks::AddQObject] = previousAdd;
        qtHookData[QHooks::RemoveQObject] = previousRemove;
    }

    void formsLeaveNothingOfOursBehind_data()
    {
        QTest::addColumn<int>("forms");
        const int formCount = qEnvironmentVariable("CC_LONG_SESSION_FORMS", "200").toInt();
        for (int first = 1; first <= formCount; first += formsPerRow)
            QTest::addRow("forms %d-%d", first, first + formsPerRow - 1) << formsPerRow;
    }

    void formsLeaveNothingOfOursBehind()
    {
        QFETCH(int, forms);
        QDesignerFormEditorInterface *core = CcTest::designerCore();
        QObject *collection = core->pluginInstances().constFirst();
        QElapsedTimer clock;
        clock.start();
        for (int round = 0; round < forms; ++round) {
            QDesignerFormWindowInterface *form = CcTest::createFormWindow(m_formXml);
            editForm(form);
            if (QTest::currentTestFailed())
                return;
            if (round == 0) {
                // The count sees what a form holds: every widget class of ours, and an extra-info
                // extension per widget.
                const QMap<QString, int> onForm = countsByClass(oursAlive());
                const auto plugins =
                        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(collection)
                                ->customWidgets();
                for (QDesignerCustomWidgetInterface *plugin : plugins)
                    QVERIFY2(onForm.contains(plugin->name()), qPrintable(plugin->name()));
                QVERIFY(onForm.value(QStringLiteral("ExtraInfoExtension")) >= plugins.size());
            }
            CcTest::closeFormWindow(form);
            CcTest::settle();
        }
        qInfo("%d forms in %lld ms", forms, clock.elapsed());

        // What stays: the collection and its plug-ins, and the factories the plug-ins registered.
        QSet<QObject *> permanent = {collection};
        for (QObject *object : collection->children() + core->extensionManager()->children())
            permanent.insert(object);
        const QObjectList left = oursAlive(permanent);
        QString byClass;
        QDebug(&byClass) << countsByClass(left);
        QVERIFY2(left.isEmpty(), qPrintable(byClass));
    }

private:
    // Our live objects, but for those in except.
    QObjectList oursAlive(const QSet<QObject *> &except = {}) const
    {
        QMutexLocker locker(&trackedLock);
        QObjectList ours;
        for (QObject *object : qAsConst(tracked)) {
            const void *origin = sharedObjectOf(&typeid(*object));
            if ((origin == m_module || origin == m_library) && !except.contains(object))
                ours << object;
        }
        return ours;
    }

    void editForm(QDesignerFormWindowInterface *form)
    {
        // Every widget of ours selected and a property of them all changed.
        QWidgetList ours;
        for (QWidget *widget : form->mainContainer()->findChildren<QWidget *>()) {
            if (form->isManaged(widget)
                && qstrncmp(widget->metaObject()->className(), "VoCc::", 6) == 0)
                ours << widget;
        }
        QVERIFY(ours.size() >= 44);
        form->clearSelection(false);
        for (QWidget *widget : qAsConst(ours))
            form->selectWidget(widget, true);
        form->cursor()->setProperty(QStringLiteral("enabled"), false);
        QVERIFY(!ours.constLast()->isEnabled());

        // Item edits of a list, a page group and a matrix through their context-menu entries.
        auto addEntry = [](Driver &dialog) {
            dialog.addRow(QStringLiteral("n"));
            dialog.typeProperty(QStringLiteral("text"), QStringLiteral("r"));
        };
        QWidget *main = form->mainContainer();
        QCOMPARE(CcTest::edit(main->findChild<VoCc::ComboBox *>(), addEntry), QString());
        QCOMPARE(CcTest::edit(main->findChild<VoCc::DrawbackBoxGroup *>(), addEntry), QString());
        QCOMPARE(CcTest::edit(main->findChild<VoCc::MatrixPushButtons *>(),
                              [](Driver &dialog) {
                                  dialog.stepTo("rowCounts",
                                                dialog.child<QSpinBox>("rowCounts")->value() + 1);
                                  dialog.selectCell(0, 0);
                                  dialog.typeProperty(QStringLiteral("toolTip"),
                                                      QStringLiteral("t"));
                              }),
                 QString());

        // The property change, the list, the page group, the matrix (its counts in the same
        // step): all undone, all redone, saved.
        QUndoStack *history = form->commandHistory();
        QCOMPARE(history->count(), 4);
        history->setIndex(0);
        QVERIFY(ours.constLast()->isEnabled());
        history->setIndex(history->count());
        QVERIFY(!ours.constLast()->isEnabled());
        QVERIFY(form->contents().contains(QLatin1String("<string>r</string>")));
    }

    const void *m_module = nullptr;
    const void *m_library = nullptr;
    QString m_formXml;
};

QTEST_MAIN(TestLongSession)
#include "tst_longsession.moc"
