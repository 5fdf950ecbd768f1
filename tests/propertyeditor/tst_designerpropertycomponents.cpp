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

#include <QAction>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerPropertyEditorInterface>
#include <QToolButton>
#include <QtTest>

using namespace qdesigner_internal;
using CcTest::subProperty;

namespace {

// Our manager and factory on a tree browser, as the item editors' pane uses them.
struct Pane
{
    explicit Pane(QDesignerFormEditorInterface *core, QObject *object = nullptr)
        : manager(core, nullptr), factory(core, nullptr)
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

    QtVariantProperty *add(int type, const char *name, bool resettable = true)
    {
        QtVariantProperty *property = manager.addProperty(type, QLatin1String(name));
        property->setAttribute(QStringLiteral("resettable"), resettable);
        browser.addProperty(property);
        return property;
    }

    DesignerPropertyManager manager;
    DesignerEditorFactory factory;
    QtTreePropertyBrowser browser;
};

PropertySheetStringValue stringOf(const QtVariantProperty *property)
{
    return qvariant_cast<PropertySheetStringValue>(property->value());
}

PropertySheetIconValue iconOf(const QtVariantProperty *property)
{
    return qvariant_cast<PropertySheetIconValue>(property->value());
}

} // namespace

class TestDesignerPropertyComponents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();

    void stringModesTranslationDataAndDialogs();
    void iconStatesThemeResourcesAndReload();
    void fontPartsAndResetButtons();
    void coexistsWithDesignersOwnPropertyEditor();

private:
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_label = nullptr;
    CcTest::TestPictures m_pictures;
};

void TestDesignerPropertyComponents::initTestCase()
{
    CcTest::usePluginModulesOnly({});
    m_core = CcTest::designerCore();
    m_form = CcTest::createFormWindow(
            CcTest::formXml(QStringLiteral("<widget class=\"QLabel\" name=\"label\"/>")));
    m_label = m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("label"));
    QVERIFY(m_label);
    QVERIFY(!m_pictures.red.isEmpty() && !m_pictures.blue.isEmpty());
}

void TestDesignerPropertyComponents::cleanupTestCase() { CcTest::closeFormWindow(m_form); }

void TestDesignerPropertyComponents::stringModesTranslationDataAndDialogs()
{
    Pane pane(m_core);
    const int type = DesignerPropertyManager::designerStringTypeId();
    QtVariantProperty *multi = pane.add(type, "multi");
    QtVariantProperty *rich = pane.add(type, "rich");
    QtVariantProperty *single = pane.add(type, "single");
    const QString mode = QStringLiteral("validationMode");
    multi->setAttribute(mode, int(ValidationMultiLine));
    rich->setAttribute(mode, int(ValidationRichText));
    single->setAttribute(mode, int(ValidationSingleLine));

    // A plain string becomes the text of a translatable value; the tree escapes line breaks.
    QList<bool> changed; // the flag of each report
    connect(&pane.manager,
            QOverload<QtProperty *, const QVariant &, bool>::of(
                    &DesignerPropertyManager::valueChanged),
            this, [&changed](QtProperty *, const QVariant &, bool flag) { changed.append(flag); });
    multi->setValue(QStringLiteral("one\ntwo"));
    multi->setValue(QStringLiteral("one\ntwo")); // no change, no report
    QCOMPARE(stringOf(multi), PropertySheetStringValue(QStringLiteral("one\ntwo")));
    QCOMPARE(multi->valueText(), QStringLiteral("one\\ntwo"));
    QCOMPARE(changed, QList<bool>({true}));

    // Only the multi-line and rich-text editors have a dialog button.
    auto *singleEditor = CcTest::openEditor<TextEditor>(&pane.browser, single);
    QVERIFY(singleEditor && !singleEditor->dialogButton()->isVisibleTo(singleEditor));

    // The translation data are sub-properties, filled from the value and written back to it.
    multi->setValue(QVariant::fromValue(PropertySheetStringValue(
            QStringLiteral("old"), false, QStringLiteral("menu"), QStringLiteral("a note"))));
    QtVariantProperty *translatable = subProperty(multi, QStringLiteral("translatable"));
    QtVariantProperty *comment = subProperty(multi, QStringLiteral("comment"));
    QCOMPARE(translatable->value(), QVariant(false));
    QCOMPARE(subProperty(multi, QStringLiteral("disambiguation"))->value().toString(),
             QStringLiteral("menu"));
    comment->setValue(QStringLiteral("a verb"));
    QCOMPARE(stringOf(multi).comment(), QStringLiteral("a verb"));
    QVERIFY(!pane.manager.isResettable(comment)); // and have no reset of their own
    QVERIFY(!qobject_cast<ResetWidget *>(CcTest::openEditor<QWidget>(&pane.browser, comment)));

    // The "..." of multi-line text opens Designer's plain-text dialog; the data stay.
    auto *multiEditor = CcTest::openEditor<TextEditor>(&pane.browser, multi);
    QVERIFY(multiEditor && multiEditor->dialogButton()->isVisibleTo(multiEditor));
    QString shownText;
    QVERIFY(CcTest::answerModal<PlainTextEditorDialog>(
            [&] { multiEditor->dialogButton()->click(); },
            [&shownText](PlainTextEditorDialog *dialog) {
                shownText = dialog->text();
                dialog->setText(QStringLiteral("first\nsecond"));
            }));
    QCOMPARE(shownText, QStringLiteral("old"));
    QCOMPARE(stringOf(multi),
             PropertySheetStringValue(QStringLiteral("first\nsecond"), false,
                                      QStringLiteral("menu"), QStringLiteral("a verb")));
    QCOMPARE(multiEditor->text(), QStringLiteral("first\nsecond"));

    // Rich text opens Designer's rich-text dialog; cancelled, nothing changes.
    auto *richEditor = CcTest::openEditor<TextEditor>(&pane.browser, rich);
    QVERIFY(richEditor && richEditor->dialogButton()->isVisibleTo(richEditor));
    for (const bool accept : {true, false}) {
        QVERIFY(CcTest::answerModal<RichTextEditorDialog>(
                [richEditor] { richEditor->dialogButton()->click(); },
                [accept](RichTextEditorDialog *d) {
                    d->setText(QLatin1String(accept ? "<b>bold</b>" : "<i>never</i>"));
                },
                accept));
        QCOMPARE(stringOf(rich).value(), QStringLiteral("<b>bold</b>"));
    }
}

void TestDesignerPropertyComponents::iconStatesThemeResourcesAndReload()
{
    Pane pane(m_core, m_label);
    auto *formBase = qobject_cast<FormWindowBase *>(m_form);
    pane.factory.setFormWindowBase(formBase);
    QtVariantProperty *icon = pane.add(DesignerPropertyManager::designerIconTypeId(), "icon");

    // One state set through its part: the icon shows it, drawn through the form's cache.
    QtVariantProperty *normalOff = subProperty(icon, QStringLiteral("Normal Off"));
    QtVariantProperty *selectedOn = subProperty(icon, QStringLiteral("Selected On"));
    normalOff->setValue(QVariant::fromValue(PropertySheetPixmapValue(m_pictures.red)));
    QCOMPARE(iconOf(icon).pixmap(QIcon::Normal, QIcon::Off).path(), m_pictures.red);
    QCOMPARE(icon->valueText(), QStringLiteral("red.png"));
    QVERIFY(normalOff->isModified() && !selectedOn->isModified());
    QCOMPARE(icon->valueIcon().cacheKey(), formBase->iconCache()->icon(iconOf(icon)).cacheKey());
    QCOMPARE(icon->valueIcon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));

    // A theme, chosen through the pixmap editor's menu and the theme dialog.
    auto *editor = CcTest::openEditor<PixmapEditor>(&pane.browser, icon);
    QVERIFY(editor && editor->themeAction()->isVisible());
    QString dialogTitle;
    QVERIFY(CcTest::answerModal<IconThemeDialog>([editor] { editor->themeAction()->trigger(); },
                                                 [&dialogTitle](IconThemeDialog *dialog) {
                                                     dialogTitle = dialog->windowTitle();
                                                     dialog->setTheme(QStringLiteral("edit-copy"));
                                                 }));
    QCOMPARE(dialogTitle, QStringLiteral("Set Icon From Theme"));
    QCOMPARE(iconOf(icon).theme(), QStringLiteral("edit-copy"));
    QCOMPARE(iconOf(icon).pixmap(QIcon::Normal, QIcon::Off).path(), m_pictures.red);
    // The theme part is edited with Designer's theme editor, and reset on its own.
    QtVariantProperty *theme = subProperty(icon, QStringLiteral("Theme"));
    QVERIFY(theme->isModified() && pane.manager.isIconThemeSubProperty(theme));
    auto *themeEditor = CcTest::openEditor<IconThemeEditor>(&pane.browser, theme);
    QVERIFY(themeEditor);
    QCOMPARE(themeEditor->theme(), QStringLiteral("edit-copy"));
    QVERIFY(pane.manager.resetIconSubProperty(theme));
    QCOMPARE(iconOf(icon).theme(), QString());

    // Designer's resource chooser opens from the same editor; cancelled, nothing changes.
    editor = CcTest::openEditor<PixmapEditor>(&pane.browser, icon);
    const PropertySheetIconValue beforeResource = iconOf(icon);
    QVERIFY(CcTest::answerModal<QDialog>([editor] { editor->chooseResourceAction()->trigger(); },
                                         [](QDialog *) {}, false));
    QCOMPARE(iconOf(icon), beforeResource);

    // A theme alone is shown by name.
    PropertySheetIconValue themeOnly;
    themeOnly.setTheme(QStringLiteral("document-open"));
    icon->setValue(QVariant::fromValue(themeOnly));
    QCOMPARE(icon->valueText(), QStringLiteral("[Theme] document-open"));

    // Reloading resources repaints the icon and pixmap rows, not the others.
    QtVariantProperty *text = pane.add(DesignerPropertyManager::designerStringTypeId(), "text");
    QtVariantProperty *pixmap = pane.add(DesignerPropertyManager::designerPixmapTypeId(), "pixmap");
    pixmap->setValue(m_pictures.red);
    QCOMPARE(pixmap->valueText(), QStringLiteral("red.png"));
    QList<QtProperty *> repainted;
    connect(&pane.manager, &QtAbstractPropertyManager::propertyChanged, this,
            [&repainted](QtProperty *property) { repainted.append(property); });
    pane.manager.reloadResourceProperties();
    QVERIFY(repainted.contains(icon) && repainted.contains(pixmap));
    QVERIFY(!repainted.contains(text));
}

void TestDesignerPropertyComponents::fontPartsAndResetButtons()
{
    Pane pane(m_core, m_label);
    QtVariantProperty *font = pane.add(QVariant::Font, "font");
    QtVariantProperty *size = subProperty(font, QStringLiteral("Point Size"));
    QtVariantProperty *bold = subProperty(font, QStringLiteral("Bold"));
    QVERIFY(size && bold);

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
    QVERIFY(f.bold() && bold->isModified() && !size->isModified());
    QVERIFY(!pane.manager.resetFontSubProperty(font)); // not a part

    // A property that is not resettable gets the bare editor, a resettable one its reset
    // button beside it.
    const int type = DesignerPropertyManager::designerStringTypeId();
    auto *plain = CcTest::openEditor<TextEditor>(&pane.browser, pane.add(type, "plain", false));
    QVERIFY(plain && !qobject_cast<ResetWidget *>(plain->parentWidget()));
    auto *reset = CcTest::openEditor<ResetWidget>(&pane.browser, pane.add(type, "resettable"));
    QVERIFY(reset && qobject_cast<TextEditor *>(reset->widget()));
}

void TestDesignerPropertyComponents::coexistsWithDesignersOwnPropertyEditor()
{
    // Designer's property editor shows a widget: its own private copies of the property
    // classes are alive in this process, under the same class names as ours.
    QDesignerPropertyEditorInterface *designerEditor = m_core->propertyEditor();
    QVERIFY(designerEditor);
    designerEditor->setObject(m_label);
    Pane pane(m_core, m_label);
    const QObject *ours[] = {&pane.manager, &pane.factory, &pane.browser};
    const QMetaObject *ourClasses[] = {&DesignerPropertyManager::staticMetaObject,
                                       &QtVariantPropertyManager::staticMetaObject,
                                       &QtAbstractPropertyManager::staticMetaObject,
                                       &DesignerEditorFactory::staticMetaObject,
                                       &QtVariantEditorFactory::staticMetaObject,
                                       &QtTreePropertyBrowser::staticMetaObject,
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

    // The value types are registered once, under Designer's names.
    QCOMPARE(QMetaType::type("qdesigner_internal::PropertySheetStringValue"),
             DesignerPropertyManager::designerStringTypeId());
    QCOMPARE(QMetaType::type("qdesigner_internal::PropertySheetIconValue"),
             DesignerPropertyManager::designerIconTypeId());
    QCOMPARE(QMetaType::type("qdesigner_internal::PropertySheetPixmapValue"),
             DesignerPropertyManager::designerPixmapTypeId());
    QCOMPARE(QMetaType::type("QtIconMap"), qMetaTypeId<QtIconMap>());

    // Ours work while theirs run: edits on both sides, each keeps its own values.
    QtVariantProperty *text = pane.add(DesignerPropertyManager::designerStringTypeId(), "text");
    QtVariantProperty *icon = pane.add(DesignerPropertyManager::designerIconTypeId(), "icon");
    QtVariantProperty *font = pane.add(QVariant::Font, "font");
    auto *textEditor = CcTest::openEditor<TextEditor>(&pane.browser, text);
    QVERIFY(textEditor);
    QTest::keyClicks(textEditor->findChild<QLineEdit *>(), QStringLiteral("ours"));
    const QVariant theirs = CcTest::stringValue(QStringLiteral("theirs"));
    m_form->cursor()->setWidgetProperty(m_label, QStringLiteral("text"), theirs);
    designerEditor->setPropertyValue(QStringLiteral("text"), theirs);
    QCOMPARE(m_label->property("text").toString(), QStringLiteral("theirs"));
    QCOMPARE(stringOf(text).value(), QStringLiteral("ours"));
    icon->setValue(CcTest::iconValue(m_pictures.red));
    subProperty(font, QStringLiteral("Bold"))->setValue(true);
    QVERIFY(qvariant_cast<QFont>(font->value()).bold());
    QVERIFY(!icon->valueIcon().isNull());
    designerEditor->setObject(m_form->mainContainer());
    designerEditor->setObject(m_label);
    QCOMPARE(designerEditor->object(), static_cast<QObject *>(m_label));
    QVERIFY(m_form->contents().contains(QStringLiteral("<string>theirs</string>")));
}

QTEST_MAIN(TestDesignerPropertyComponents)
#include "tst_designerpropertycomponents.moc"
