// Our property browser inside a running Designer, whose own components carry private
// classes of the same names: each copy keeps to itself, and both work side by side.

#include "designertestcore.h"
#include "propertymetatypes.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QApplication>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerPropertyEditorInterface>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <dlfcn.h>

// The file of the loaded module that holds the given address.
static QString moduleOf(const void *address)
{
    Dl_info info {};
    if (!dladdr(address, &info) || !info.dli_fname)
        return QString();
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).canonicalFilePath();
}

static QList<QObject *> objectsOfClass(QObject *root, const char *className)
{
    QList<QObject *> found;
    const QList<QObject *> all = root->findChildren<QObject *>();
    for (QObject *object : all) {
        if (object->inherits(className))
            found.append(object);
    }
    return found;
}

static bool showsRow(QTreeWidget *tree, const QString &name)
{
    return !tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).isEmpty();
}

class TestPropertyBrowserInDesigner : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void classesStayApart();
    void bothBrowsersWork();
    void moduleKeepsItsCopyToItself();

private:
    QDesignerFormEditorInterface *m_core = nullptr;
};

void TestPropertyBrowserInDesigner::initTestCase()
{
    registerPropertyMetaTypes();
    CcTest::usePluginModulesOnly({});
    m_core = CcTest::designerCore();
    QVERIFY(m_core);
    QVERIFY(m_core->propertyEditor());
}

void TestPropertyBrowserInDesigner::classesStayApart()
{
    QDesignerPropertyEditorInterface *editor = m_core->propertyEditor();
    const QList<QObject *> designerBrowsers = objectsOfClass(editor, "QtTreePropertyBrowser");
    QVERIFY2(!designerBrowsers.isEmpty(), "Designer's property editor shows a tree browser");
    const QList<QObject *> designerManagers = objectsOfClass(editor, "QtVariantPropertyManager");
    QVERIFY2(!designerManagers.isEmpty(), "Designer's property editor has a variant manager");

    const QString executable =
            QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    const QString ourModule = moduleOf(&QtTreePropertyBrowser::staticMetaObject);
    QCOMPARE(ourModule, executable);
    QCOMPARE(moduleOf(reinterpret_cast<const void *>(&QtVariantPropertyManager::enumTypeId)),
             executable);

    for (QObject *designerBrowser : designerBrowsers) {
        QVERIFY(designerBrowser->metaObject() != &QtTreePropertyBrowser::staticMetaObject);
        QVERIFY(!qobject_cast<QtTreePropertyBrowser *>(designerBrowser));
        QVERIFY(!qobject_cast<QtAbstractPropertyBrowser *>(designerBrowser));
        const QString designerModule = moduleOf(designerBrowser->metaObject());
        QVERIFY2(designerModule.contains(QStringLiteral("DesignerComponents")),
                 qPrintable(designerModule));
    }
    for (QObject *designerManager : designerManagers) {
        QVERIFY(!qobject_cast<QtVariantPropertyManager *>(designerManager));
        QVERIFY(!qobject_cast<QtAbstractPropertyManager *>(designerManager));
    }
}

void TestPropertyBrowserInDesigner::bothBrowsersWork()
{
    // Designer's own property editor shows a form's widget...
    QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(
            QStringLiteral("  <widget class=\"QPushButton\" name=\"button\">\n"
                           "   <property name=\"text\"><string>Press</string></property>\n"
                           "  </widget>\n")));
    QVERIFY(form);
    auto *button = form->mainContainer()->findChild<QPushButton *>(QStringLiteral("button"));
    QVERIFY(button);
    QDesignerPropertyEditorInterface *editor = m_core->propertyEditor();
    editor->setObject(button);
    QTreeWidget *designerTree = nullptr;
    for (QObject *designerBrowser : objectsOfClass(editor, "QtTreePropertyBrowser")) {
        if (auto *tree = designerBrowser->findChild<QTreeWidget *>())
            designerTree = tree;
    }
    QVERIFY(designerTree);
    QVERIFY(showsRow(designerTree, QStringLiteral("objectName")));

    // The marker types naming enums, flags and groups go by the same names in Designer's
    // copy, whose editor registered them above. Qt takes a second registration of a name
    // only when the type is declared alike (it aborts otherwise); the ids are then shared.
    QCOMPARE(QMetaType::type("QtEnumPropertyType"), QtVariantPropertyManager::enumTypeId());
    QCOMPARE(QMetaType::type("QtFlagPropertyType"), QtVariantPropertyManager::flagTypeId());
    QCOMPARE(QMetaType::type("QtGroupPropertyType"), QtVariantPropertyManager::groupTypeId());

    // ...while ours, in the same process, shows and edits its own properties.
    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager<QtVariantPropertyManager>(&manager, &factory);
    QtVariantProperty *text = manager.addProperty(QMetaType::QString, QStringLiteral("text"));
    browser.addProperty(text);
    browser.addProperty(manager.addProperty(QMetaType::QFont, QStringLiteral("font")));
    browser.resize(360, 300);
    browser.show();
    QApplication::setActiveWindow(&browser);
    QVERIFY(QTest::qWaitForWindowActive(&browser));

    QTreeWidget *tree = browser.findChild<QTreeWidget *>();
    QCOMPARE(tree->topLevelItem(1)->childCount(), 7);
    browser.editItem(browser.topLevelItem(text));
    auto *lineEdit = qobject_cast<QLineEdit *>(tree->indexWidget(tree->currentIndex()));
    QVERIFY(lineEdit);
    QTRY_VERIFY(lineEdit->hasFocus());
    QTest::keyClicks(lineEdit, QStringLiteral("New Item"));
    QTest::keyClick(lineEdit, Qt::Key_Return);
    QCOMPARE(tree->topLevelItem(0)->text(1), QStringLiteral("New Item"));

    // Designer's editor still follows its objects after ours was used.
    editor->setObject(form->mainContainer());
    QVERIFY(showsRow(designerTree, QStringLiteral("windowTitle")));
    CcTest::closeFormWindow(form);
}

void TestPropertyBrowserInDesigner::moduleKeepsItsCopyToItself()
{
    // A module linking the browser, loaded into the running Designer like a plug-in: none
    // of the browser's symbols are visible outside it, and it uses its own copy.
#ifdef CC_EXTERNAL_QTPROPERTYBROWSER
    QSKIP("Built against an installed property browser");
#endif
    void *module = dlopen(CC_PROPERTYBROWSER_MODULE, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(module, dlerror());
    QVERIFY(!dlsym(module, "_ZN24QtVariantPropertyManager10enumTypeIdEv"));
    QVERIFY(!dlsym(module, "_ZN21QtTreePropertyBrowser16staticMetaObjectE"));
    QVERIFY(!dlsym(module, "_ZN10QtPropertyD2Ev"));
    using Create = QWidget *(*)();
    auto create = reinterpret_cast<Create>(dlsym(module, "ccCreatePropertyBrowser"));
    QVERIFY(create);

    QWidget *browser = create();
    QVERIFY(browser->inherits("QtTreePropertyBrowser"));
    QVERIFY(browser->metaObject() != &QtTreePropertyBrowser::staticMetaObject);
    QCOMPARE(moduleOf(browser->metaObject()),
             QFileInfo(QStringLiteral(CC_PROPERTYBROWSER_MODULE)).canonicalFilePath());
    QVERIFY(!qobject_cast<QtTreePropertyBrowser *>(browser));
    auto *tree = browser->findChild<QTreeWidget *>();
    QVERIFY(tree);
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("text"));
    delete browser; // its manager and factory go with it
    // The module stays loaded: Qt keeps references to its meta-objects.
}

QTEST_MAIN(TestPropertyBrowserInDesigner)
#include "tst_propertybrowserindesigner.moc"
