#include "qtcompat.h"

#include "designertestcore.h"
#include "itemeditortestsupport.h"

#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "iconthemedialog.h"
#include "pixmapeditor.h"
#include "resetwidget.h"
#include "texteditor.h"

#include <QtDesigner/private/formwindowbase_p.h>
#include <QtDesigner/private/iconselector_p.h>
#include <QtDesigner/private/plaintexteditor_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>
#include <QtDesigner/private/richtexteditor_p.h>

#include <QtDesigner>
#include <QtTest>

#include <dlfcn.h>

using namespace qdesigner_internal;
using CcTest::stringOf;
using CcTest::subProperty;

namespace {

// Our manager and factory on a tree browser, as the item editors' pane uses them.
struct Pane
{
    explicit Pane(QObject *object = nullptr)
        : manager(CcTest::designerCore(), nullptr), factory(CcTest::designerCore(), nullptr)
    {
        manager.setObject(object);
        browser.setFactoryForManager(static_cast<QtVariantPropertyManager *>(&manager),
                                     static_cast<QtVariantEditorFactory *>(&factory));
        browser.resize(400, 500);
        browser.show();
    }
    ~Pane()
    {
        browser.clear();
        CcTest::settle(); // closed editors go now, not after the test
    }

    QtVariantProperty *add(int type, const char *name)
    {
        QtVariantProperty *property = manager.addProperty(type, QLatin1String(name));
        property->setAttribute(QStringLiteral("resettable"), true);
        browser.addProperty(property);
        return property;
    }

    DesignerPropertyManager manager;
    DesignerEditorFactory factory;
    QtTreePropertyBrowser browser;
};

PropertySheetIconValue iconOf(const QtVariantProperty *property)
{
    return qvariant_cast<PropertySheetIconValue>(property->value());
}

} // namespace

class TestDesignerPropertyComponents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        CcTest::usePluginModulesOnly({});
        m_form = CcTest::createFormWindow(
                CcTest::formXml(QStringLiteral("<widget class=\"QLabel\" name=\"label\"/>")));
        m_label = CcTest::formChild(m_form, "label");
    }

    void cleanupTestCase() { CcTest::closeFormWindow(m_form); }

    void stringModesTranslationDataAndDialogs()
    {
        Pane pane;
        const int type = DesignerPropertyManager::designerStringTypeId();
        QtVariantProperty *multi = pane.add(type, "multi");
        QtVariantProperty *rich = pane.add(type, "rich");
        QtVariantProperty *single = pane.add(type, "single");
        const QString mode = QStringLiteral("validationMode");
        rich->setAttribute(mode, int(ValidationRichText));
        single->setAttribute(mode, int(ValidationSingleLine));
        QCOMPARE(multi->valueType(), type);

        // A plain string becomes the text of a translatable value; the tree escapes line breaks.
        QList<bool> changed; // the flag of each report
        connect(&pane.manager,
                QOverload<QtProperty *, const QVariant &, bool>::of(
                        &DesignerPropertyManager::valueChanged),
                this,
                [&changed](QtProperty *, const QVariant &, bool flag) { changed.append(flag); });
        multi->setValue(QStringLiteral("one\ntwo"));
        multi->setValue(QStringLiteral("one\ntwo")); // no change, no report
        QCOMPARE(stringOf(multi->value()), PropertySheetStringValue(QStringLiteral("one\ntwo")));
        QCOMPARE(multi->valueText(), QStringLiteral("one\\ntwo"));
        QCOMPARE(changed, QList<bool>({true}));

        // Only the multi-line and rich-text editors have a dialog button.
        auto *singleEditor = CcTest::openEditor<TextEditor>(&pane.browser, single);
        QVERIFY(singleEditor);
        QVERIFY(!singleEditor->dialogButton()->isVisibleTo(singleEditor));
        QTest::keyClicks(singleEditor->findChild<QLineEdit *>(), QStringLiteral("typed"));
        QCOMPARE(stringOf(single->value()).value(), QStringLiteral("typed"));

        // The translation data are sub-properties, filled from the value and written back to it.
        multi->setValue(QVariant::fromValue(PropertySheetStringValue(
                QStringLiteral("old"), false, QStringLiteral("menu"), QStringLiteral("a note"))));
        QtVariantProperty *comment = subProperty(multi, QStringLiteral("comment"));
        QCOMPARE(subProperty(multi, QStringLiteral("disambiguation"))->valueText(),
                 QStringLiteral("menu"));
        comment->setValue(QStringLiteral("a verb"));
        QCOMPARE(stringOf(multi->value()).comment(), QStringLiteral("a verb"));
        // They have no reset of their own.
        auto *commentEditor = CcTest::openEditor<QLineEdit>(&pane.browser, comment);
        QVERIFY(commentEditor);
        QVERIFY(!qobject_cast<ResetWidget *>(commentEditor->parentWidget()));

        // The "..." of multi-line text opens Designer's plain-text dialog; the data stay.
        auto *multiEditor = CcTest::openEditor<TextEditor>(&pane.browser, multi);
        QVERIFY(multiEditor);
        QVERIFY(multiEditor->dialogButton()->isVisibleTo(multiEditor));
        QString shownText;
        QVERIFY(CcTest::answerModal<PlainTextEditorDialog>(
                [&] { multiEditor->dialogButton()->click(); },
                [&shownText](PlainTextEditorDialog *dialog) {
                    shownText = dialog->text();
                    dialog->setText(QStringLiteral("first\nsecond"));
                }));
        QCOMPARE(shownText, QStringLiteral("old"));
        QCOMPARE(stringOf(multi->value()),
                 PropertySheetStringValue(QStringLiteral("first\nsecond"), false,
                                          QStringLiteral("menu"), QStringLiteral("a verb")));

        // Rich text opens Designer's rich-text dialog; cancelled, nothing changes.
        auto *richEditor = CcTest::openEditor<TextEditor>(&pane.browser, rich);
        QVERIFY(richEditor);
        QVERIFY(richEditor->dialogButton()->isVisibleTo(richEditor));
        const auto clickDots = [richEditor] { richEditor->dialogButton()->click(); };
        for (const bool accept : {true, false}) {
            const auto type = [accept](RichTextEditorDialog *dialog) {
                dialog->setText(QLatin1String(accept ? "<b>bold</b>" : "<i>never</i>"));
            };
            QVERIFY(CcTest::answerModal<RichTextEditorDialog>(clickDots, type, accept));
            QCOMPARE(stringOf(rich->value()).value(), QStringLiteral("<b>bold</b>"));
        }
    }

    void iconStatesThemeResourcesAndReload()
    {
        Pane pane(m_label);
        auto *formBase = qobject_cast<FormWindowBase *>(m_form);
        pane.factory.setFormWindowBase(formBase);
        QtVariantProperty *icon = pane.add(DesignerPropertyManager::designerIconTypeId(), "icon");

        // One state set through its part: the icon shows it, drawn through the form's cache.
        subProperty(icon, QStringLiteral("Normal Off"))
                ->setValue(QVariant::fromValue(PropertySheetPixmapValue(m_pictures.red)));
        QCOMPARE(iconOf(icon).pixmap(QIcon::Normal, QIcon::Off).path(), m_pictures.red);
        QVERIFY(subProperty(icon, QStringLiteral("Normal Off"))->isModified());
        QVERIFY(!subProperty(icon, QStringLiteral("Selected On"))->isModified());
        QCOMPARE(icon->valueText(), QStringLiteral("red.png"));
        QCOMPARE(icon->valueIcon().cacheKey(),
                 formBase->iconCache()->icon(iconOf(icon)).cacheKey());

        // A theme, chosen through the pixmap editor's menu and the theme dialog.
        auto *editor = CcTest::openEditor<PixmapEditor>(&pane.browser, icon);
        QVERIFY(editor);
        QVERIFY(editor->themeAction()->isVisible());
        QVERIFY(CcTest::answerModal<IconThemeDialog>(
                [editor] { editor->themeAction()->trigger(); },
                [](IconThemeDialog *dialog) { dialog->setTheme(QStringLiteral("edit-copy")); }));
        QCOMPARE(iconOf(icon).theme(), QStringLiteral("edit-copy"));
        QCOMPARE(iconOf(icon).pixmap(QIcon::Normal, QIcon::Off).path(), m_pictures.red);
        // The theme part is edited with Designer's theme editor, and reset on its own.
        QtVariantProperty *theme = subProperty(icon, QStringLiteral("Theme"));
        QVERIFY(theme->isModified());
        QVERIFY(CcTest::openEditor<IconThemeEditor>(&pane.browser, theme));
        QVERIFY(pane.manager.resetIconSubProperty(theme));
        QCOMPARE(iconOf(icon).theme(), QString());

        // Designer's resource chooser opens from the same editor; cancelled, nothing changes.
        editor = CcTest::openEditor<PixmapEditor>(&pane.browser, icon);
        const PropertySheetIconValue beforeResource = iconOf(icon);
        QVERIFY(CcTest::answerModal<QDialog>(
                [editor] { editor->chooseResourceAction()->trigger(); }, [](QDialog *) {}, false));
        QCOMPARE(iconOf(icon), beforeResource);

        // A theme alone is shown by name.
        PropertySheetIconValue themeOnly;
        themeOnly.setTheme(QStringLiteral("document-open"));
        icon->setValue(QVariant::fromValue(themeOnly));
        QCOMPARE(icon->valueText(), QStringLiteral("[Theme] document-open"));

        // Reloading resources repaints the icon and pixmap rows, not the others.
        QtVariantProperty *text = pane.add(DesignerPropertyManager::designerStringTypeId(), "text");
        auto *pixmap = pane.add(DesignerPropertyManager::designerPixmapTypeId(), "pixmap");
        pixmap->setValue(m_pictures.red);
        QCOMPARE(pixmap->valueText(), QStringLiteral("red.png"));
        QList<QtProperty *> repainted;
        connect(&pane.manager, &QtAbstractPropertyManager::propertyChanged, this,
                [&repainted](QtProperty *property) { repainted.append(property); });
        pane.manager.reloadResourceProperties();
        QVERIFY(repainted.contains(icon));
        QVERIFY(repainted.contains(pixmap));
        QVERIFY(!repainted.contains(text));
    }

    void fontParts()
    {
        Pane pane(m_label);
        QtVariantProperty *font = pane.add(QVariant::Font, "font");
        QtVariantProperty *size = subProperty(font, QStringLiteral("Point Size"));
        QtVariantProperty *bold = subProperty(font, QStringLiteral("Bold"));

        // Escape abandons an edit, also inside the frame a reset button puts an editor in.
        QApplication::setActiveWindow(&pane.browser);
        QVERIFY(QTest::qWaitForWindowActive(&pane.browser));
        const QVariant sizeBefore = size->value();
        auto *spin = CcTest::openEditor<QSpinBox>(&pane.browser, size);
        QVERIFY(spin);
        QVERIFY(qobject_cast<ResetWidget *>(spin->parentWidget()));
        QTRY_VERIFY(spin->hasFocus());
        spin->selectAll();
        QTest::keyClicks(spin, QStringLiteral("64"));
        QTest::keyClick(spin, Qt::Key_Escape);
        CcTest::settle();
        QCOMPARE(size->value(), sizeBefore);

        // Each edited part is resolved in the font; a part reset takes the object's default
        // and drops that part only.
        bold->setValue(true);
        size->setValue(m_label->font().pointSize() + 7);
        QCOMPARE(CcQt::fontResolveMask(qvariant_cast<QFont>(font->value())),
                 uint(QFont::WeightResolved | QFont::SizeResolved));
        QVERIFY(pane.manager.resetFontSubProperty(size));
        const QFont f = qvariant_cast<QFont>(font->value());
        QCOMPARE(f.pointSize(), m_label->font().pointSize());
        QCOMPARE(CcQt::fontResolveMask(f), uint(QFont::WeightResolved));
        QVERIFY(f.bold());
        QVERIFY(bold->isModified());
        QVERIFY(!size->isModified());
    }

    void coexistsWithDesignersOwnPropertyEditor()
    {
        // Designer's property editor shows a widget: its own private copies of the property
        // classes are alive in this process, under the same class names as ours.
        QDesignerPropertyEditorInterface *designerEditor = CcTest::designerCore()->propertyEditor();
        designerEditor->setObject(m_label);
        Pane pane(m_label);
        const QObject *ours[] = {&pane.manager, &pane.factory, &pane.browser};
        // Our base classes: a cast to any of ours passes through one of them.
        const QMetaObject *ourClasses[] = {&QtAbstractPropertyManager::staticMetaObject,
                                           &QtAbstractEditorFactoryBase::staticMetaObject,
                                           &QtAbstractPropertyBrowser::staticMetaObject};
        for (const QObject *our : ours) {
            int theirs = 0;
            const QObjectList all = designerEditor->findChildren<QObject *>();
            for (QObject *object : all) {
                if (qstrcmp(object->metaObject()->className(), our->metaObject()->className()))
                    continue;
                ++theirs;
                // Same name, another class: no cast crosses over, in either direction.
                QVERIFY(!object->metaObject()->cast(const_cast<QObject *>(our)));
                for (const QMetaObject *ourClass : ourClasses)
                    QVERIFY2(!ourClass->cast(object), ourClass->className());
            }
            QVERIFY2(theirs > 0, our->metaObject()->className());
        }

        // Theirs still edit while ours run.
        const QVariant theirs = CcTest::stringValue(QStringLiteral("theirs"));
        m_form->cursor()->setWidgetProperty(m_label, QStringLiteral("text"), theirs);
        designerEditor->setPropertyValue(QStringLiteral("text"), theirs);
        designerEditor->setObject(m_form->mainContainer());
        designerEditor->setObject(m_label);
        QCOMPARE(designerEditor->object(), static_cast<QObject *>(m_label));
        QVERIFY(m_form->contents().contains(QStringLiteral("<string>theirs</string>")));

        // A module linking the browser, loaded like a plug-in, keeps its copy to itself: none of
        // the browser's symbols are visible outside it.
#ifdef CC_EXTERNAL_QTPROPERTYBROWSER
        QSKIP("Built against an installed property browser");
#endif
        void *module = dlopen(CC_PROPERTYBROWSER_MODULE, RTLD_NOW | RTLD_LOCAL);
        QVERIFY2(module, dlerror());
        for (const char *symbol :
             {"_ZN24QtVariantPropertyManager10enumTypeIdEv",
              "_ZN21QtTreePropertyBrowser16staticMetaObjectE", "_ZN10QtPropertyD2Ev"})
            QVERIFY2(!dlsym(module, symbol), symbol);
        using Create = QWidget *(*)();
        auto create = reinterpret_cast<Create>(dlsym(module, "ccCreatePropertyBrowser"));
        QVERIFY(create);
        QWidget *browser = create();
        QVERIFY(browser->inherits("QtTreePropertyBrowser"));
        QVERIFY(!qobject_cast<QtTreePropertyBrowser *>(browser));
        Dl_info info {};
        QVERIFY(dladdr(browser->metaObject(), &info));
        QVERIFY(info.dli_fname);
        QCOMPARE(QFileInfo(QString::fromLocal8Bit(info.dli_fname)).canonicalFilePath(),
                 QFileInfo(QStringLiteral(CC_PROPERTYBROWSER_MODULE)).canonicalFilePath());
        auto *tree = browser->findChild<QTreeWidget *>();
        QVERIFY(tree);
        QCOMPARE(tree->topLevelItemCount(), 1);
        QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("text"));
        delete browser; // its manager and factory go with it
        // The module stays loaded: Qt keeps references to its meta-objects.
    }

private:
    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_label = nullptr;
    CcTest::TestPictures m_pictures;
};

QTEST_MAIN(TestDesignerPropertyComponents)
#include "tst_designerpropertycomponents.moc"
