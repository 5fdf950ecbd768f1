// A long Designer session: many forms holding all of our widgets, each opened, edited and
// closed in one core. Every QObject made meanwhile is tracked through Qt's object hooks; an
// object is ours when its class comes from the plug-in module or the widget library, told by
// the shared object that holds its type information. Once every form is closed, nothing of
// ours may be left but the collection, its plug-ins and the extension factories.

#include "itemdialogdriver.h"

#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QtCore/private/qhooks_p.h>
#include <QtDesigner>
#include <QtTest>

#include <dlfcn.h>

#include <typeinfo>

using namespace CcTest;

namespace {

// In data rows of 10 forms, each checked on its own, so that no row nears QtTest's time limit.
// CC_LONG_SESSION_FORMS sets how many forms (default 200).
const int formsPerRow = 10;

QMutex trackedLock;
QSet<QObject *> tracked;
quintptr previousHooks[QHooks::LastHookIndex] = {};

// The hook for objects made (AddQObject) or deleted (RemoveQObject): tracks the object, then
// calls the hook that was there before.
template<int hook>
void track(QObject *object)
{
    {
        // Not held while the earlier hook runs: it may make objects of its own.
        QMutexLocker locker(&trackedLock);
        if (hook == QHooks::AddQObject)
            tracked.insert(object);
        else
            tracked.remove(object);
    }
    if (previousHooks[hook])
        reinterpret_cast<QHooks::AddQObjectCallback>(previousHooks[hook])(object);
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

} // namespace

class TestLongSession : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // Tracking starts before the core exists, so the plug-ins and factories are seen too.
        std::copy(qtHookData, qtHookData + QHooks::LastHookIndex, previousHooks);
        qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&track<QHooks::AddQObject>);
        qtHookData[QHooks::RemoveQObject] =
                reinterpret_cast<quintptr>(&track<QHooks::RemoveQObject>);

        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(designerCore());
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
        for (const int hook : {QHooks::AddQObject, QHooks::RemoveQObject})
            qtHookData[hook] = previousHooks[hook];
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
        QDesignerFormEditorInterface *core = designerCore();
        QObject *collection = core->pluginInstances().constFirst();
        QElapsedTimer clock;
        clock.start();
        for (int round = 0; round < forms; ++round) {
            QDesignerFormWindowInterface *form = createFormWindow(m_formXml);
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
            closeFormWindow(form);
            settle();
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
        QWidget *main = form->mainContainer();
        QWidgetList ours;
        form->clearSelection(false);
        for (QWidget *widget : main->findChildren<QWidget *>()) {
            if (form->isManaged(widget)
                && QByteArray(widget->metaObject()->className()).startsWith("VoCc::")) {
                ours << widget;
                form->selectWidget(widget, true);
            }
        }
        QVERIFY(ours.size() >= 44);
        form->cursor()->setProperty(QStringLiteral("enabled"), false);
        QVERIFY(!ours.constLast()->isEnabled());

        // Item edits of a list, a page group and a matrix through their context-menu entries.
        const auto addEntry = [](ItemDialogDriver &dialog) { dialog.play("nn ptext=r"); };
        const auto growMatrix = [](ItemDialogDriver &dialog) {
            const int rows = dialog.child<QSpinBox>("rowCounts")->value();
            dialog.play(QStringLiteral("R%1 c0,0 ptoolTip=t").arg(rows + 1));
        };
        QCOMPARE(edit(main->findChild<VoCc::ComboBox *>(), addEntry), QString());
        QCOMPARE(edit(main->findChild<VoCc::DrawbackBoxGroup *>(), addEntry), QString());
        QCOMPARE(edit(main->findChild<VoCc::MatrixPushButtons *>(), growMatrix), QString());

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
