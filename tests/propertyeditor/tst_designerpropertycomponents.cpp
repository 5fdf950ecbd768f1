#include "designertestcore.h"
#include "itemeditortestsupport.h"

#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "iconthemedialog.h"
#include "pixmapeditor.h"
#include "resetwidget.h"
#include "texteditor.h"

#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

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
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace qdesigner_internal;

namespace {

// Our manager and factory on a tree browser, as the item editors' pane uses them.
struct Pane
{
    explicit Pane(QDesignerFormEditorInterface *core)
        : manager(core, nullptr), factory(core, nullptr)
    {
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

QtVariantProperty *sub(QtProperty *property, const QString &name)
{
    const QList<QtProperty *> subs = property->subProperties();
    for (QtProperty *candidate : subs) {
        if (candidate->propertyName() == name)
            return static_cast<QtVariantProperty *>(candidate);
    }
    return nullptr;
}

QStringList names(const QList<QtProperty *> &properties)
{
    QStringList result;
    for (const QtProperty *property : properties)
        result.append(property->propertyName());
    return result;
}

PropertySheetStringValue stringOf(const QVariant &v)
{
    return qvariant_cast<PropertySheetStringValue>(v);
}

PropertySheetIconValue iconOf(const QVariant &v)
{
    return qvariant_cast<PropertySheetIconValue>(v);
}

// All objects below root whose class is named className, whatever library made them.
QObjectList objectsOfClass(QObject *root, const char *className)
{
    QObjectList result;
    const QObjectList all = root->findChildren<QObject *>();
    for (QObject *object : all) {
        if (qstrcmp(object->metaObject()->className(), className) == 0)
            result.append(object);
    }
    return result;
}

} // namespace

class TestDesignerPropertyComponents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();

    void stringValuesWithValidationModesAndDialogs();
    void stringTranslationDataAsSubProperties();
    void iconValuesWithStatesThemeAndCache();
    void fontPartsResetOneByOne();
    void resetButtonsFollowTheModifiedState();
    void coexistsWithDesignersOwnPropertyEditor();

private:
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_label = nullptr;
    QTemporaryDir m_dir;
    QString m_redPicture;
    QString m_bluePicture;
};

void TestDesignerPropertyComponents::initTestCase()
{
    CcTest::usePluginModulesOnly({});
    m_core = CcTest::designerCore();
    m_form = CcTest::createFormWindow(CcTest::formXml(
            QStringLiteral("  <widget class=\"QLabel\" name=\"label\">\n"
                           "   <property name=\"text\"><string>Label</string></property>\n"
                           "  </widget>\n")));
    QVERIFY(m_form);
    m_label = m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("label"));
    QVERIFY(m_label);
    QVERIFY(m_dir.isValid());
    m_redPicture = m_dir.filePath(QStringLiteral("red.png"));
    m_bluePicture = m_dir.filePath(QStringLiteral("blue.png"));
    QVERIFY(CcTest::writeTestPicture(m_redPicture, Qt::red));
    QVERIFY(CcTest::writeTestPicture(m_bluePicture, Qt::blue));
}

void TestDesignerPropertyComponents::cleanupTestCase() { CcTest::closeFormWindow(m_form); }

void TestDesignerPropertyComponents::stringValuesWithValidationModesAndDialogs()
{
    Pane pane(m_core);
    const int type = DesignerPropertyManager::designerStringTypeId();
    QCOMPARE(type, qMetaTypeId<PropertySheetStringValue>());
    QVERIFY(pane.manager.isPropertyTypeSupported(type));
    QCOMPARE(pane.manager.valueType(type), type);
    QVERIFY(pane.manager.attributes(type).contains(QStringLiteral("validationMode")));
    QCOMPARE(pane.manager.attributeType(type, QStringLiteral("validationMode")),
             int(QVariant::Int));

    QtVariantProperty *multi = pane.add(type, "multi");
    QtVariantProperty *rich = pane.add(type, "rich");
    QtVariantProperty *single = pane.add(type, "single");
    multi->setAttribute(QStringLiteral("validationMode"), int(ValidationMultiLine));
    rich->setAttribute(QStringLiteral("validationMode"), int(ValidationRichText));
    single->setAttribute(QStringLiteral("validationMode"), int(ValidationSingleLine));
    QCOMPARE(single->attributeValue(QStringLiteral("validationMode")).toInt(),
             int(ValidationSingleLine));

    // A plain string is taken as the text of a translatable value; the tree shows line
    // breaks escaped.
    QList<bool> changed; // the flag of each report
    connect(&pane.manager,
            QOverload<QtProperty *, const QVariant &, bool>::of(
                    &DesignerPropertyManager::valueChanged),
            this, [&changed](QtProperty *, const QVariant &, bool flag) { changed.append(flag); });
    multi->setValue(QStringLiteral("one\ntwo"));
    QCOMPARE(stringOf(multi->value()).value(), QStringLiteral("one\ntwo"));
    QVERIFY(stringOf(multi->value()).translatable());
    QCOMPARE(multi->valueText(), QStringLiteral("one\\ntwo"));
    QCOMPARE(changed, QList<bool>({true}));
    multi->setValue(QStringLiteral("one\ntwo")); // no change, no signal
    QCOMPARE(changed.size(), 1);

    // The line editor in the tree follows the mode; the single line has no dialog button.
    auto *multiEditor = CcTest::openEditor<TextEditor>(&pane.browser, multi);
    QVERIFY(multiEditor);
    QCOMPARE(multiEditor->textPropertyValidationMode(), ValidationMultiLine);
    QCOMPARE(multiEditor->text(), QStringLiteral("one\ntwo"));
    QVERIFY(multiEditor->dialogButton()->isVisibleTo(multiEditor));
    auto *singleEditor = CcTest::openEditor<TextEditor>(&pane.browser, single);
    QVERIFY(singleEditor);
    QCOMPARE(singleEditor->textPropertyValidationMode(), ValidationSingleLine);
    QVERIFY(!singleEditor->dialogButton()->isVisibleTo(singleEditor));
    // A mode changed while the editor is open reaches it.
    single->setAttribute(QStringLiteral("validationMode"), int(ValidationRichText));
    QCOMPARE(singleEditor->textPropertyValidationMode(), ValidationRichText);
    QVERIFY(singleEditor->dialogButton()->isVisibleTo(singleEditor));
    single->setAttribute(QStringLiteral("validationMode"), int(ValidationSingleLine));

    // Multi-line text: Designer's plain-text dialog; the translation data stays.
    PropertySheetStringValue withData(QStringLiteral("old"), false, QStringLiteral("menu"),
                                      QStringLiteral("a note"));
    multi->setValue(QVariant::fromValue(withData));
    multiEditor = CcTest::openEditor<TextEditor>(&pane.browser, multi);
    QString shownText;
    auto plainDone =
            CcTest::whenModal<PlainTextEditorDialog>([&shownText](PlainTextEditorDialog *dialog) {
                shownText = dialog->text();
                dialog->setText(QStringLiteral("first\nsecond"));
                QMetaObject::invokeMethod(dialog, "accept");
            });
    multiEditor->dialogButton()->click();
    QVERIFY(*plainDone);
    QCOMPARE(shownText, QStringLiteral("old"));
    PropertySheetStringValue expected = withData;
    expected.setValue(QStringLiteral("first\nsecond"));
    QCOMPARE(stringOf(multi->value()), expected);
    QCOMPARE(multiEditor->text(), QStringLiteral("first\nsecond"));

    // Rich text: Designer's rich-text dialog.
    auto *richEditor = CcTest::openEditor<TextEditor>(&pane.browser, rich);
    QCOMPARE(richEditor->textPropertyValidationMode(), ValidationRichText);
    auto richDone = CcTest::whenModal<RichTextEditorDialog>([](RichTextEditorDialog *dialog) {
        dialog->setText(QStringLiteral("<b>bold</b>"));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    richEditor->dialogButton()->click();
    QVERIFY(*richDone);
    QCOMPARE(stringOf(rich->value()).value(), QStringLiteral("<b>bold</b>"));

    // Cancelling a dialog changes nothing.
    const int before = changed.size();
    auto cancelled = CcTest::whenModal<RichTextEditorDialog>([](RichTextEditorDialog *dialog) {
        dialog->setText(QStringLiteral("<i>never</i>"));
        QMetaObject::invokeMethod(dialog, "reject");
    });
    richEditor->dialogButton()->click();
    QVERIFY(*cancelled);
    QCOMPARE(stringOf(rich->value()).value(), QStringLiteral("<b>bold</b>"));
    QCOMPARE(changed.size(), before);

    // Typed into the line editor, in single-line mode, "\n" stays two characters.
    singleEditor = CcTest::openEditor<TextEditor>(&pane.browser, single);
    QLineEdit *line = singleEditor->findChild<QLineEdit *>();
    QVERIFY(line);
    QTest::keyClicks(line, QStringLiteral("a\\nb"));
    QCOMPARE(stringOf(single->value()).value(), QStringLiteral("a\\nb"));
}

void TestDesignerPropertyComponents::stringTranslationDataAsSubProperties()
{
    Pane pane(m_core);
    QtVariantProperty *text = pane.add(DesignerPropertyManager::designerStringTypeId(), "text");
    QCOMPARE(names(text->subProperties()),
             QStringList({"translatable", "disambiguation", "comment"}));
    QtVariantProperty *translatable = sub(text, QStringLiteral("translatable"));
    QtVariantProperty *disambiguation = sub(text, QStringLiteral("disambiguation"));
    QtVariantProperty *comment = sub(text, QStringLiteral("comment"));
    QCOMPARE(pane.manager.parentProperty(comment), static_cast<QtProperty *>(text));
    QCOMPARE(translatable->value(), QVariant(true));

    // The parent's value fills the parts ...
    text->setValue(QVariant::fromValue(PropertySheetStringValue(
            QStringLiteral("Open"), false, QStringLiteral("file menu"), QStringLiteral("verb"))));
    QCOMPARE(translatable->value(), QVariant(false));
    QCOMPARE(disambiguation->value().toString(), QStringLiteral("file menu"));
    QCOMPARE(comment->value().toString(), QStringLiteral("verb"));

    // ... and an edited part changes the parent, which reports it.
    QList<QtProperty *> reported;
    connect(&pane.manager, &DesignerPropertyManager::propertyChanged, this,
            [&reported](QtProperty *property) { reported.append(property); });
    comment->setValue(QStringLiteral("a verb"));
    QCOMPARE(stringOf(text->value()).comment(), QStringLiteral("a verb"));
    QCOMPARE(stringOf(text->value()).value(), QStringLiteral("Open"));
    QVERIFY(reported.contains(text));
    translatable->setValue(true);
    QVERIFY(stringOf(text->value()).translatable());
    QCOMPARE(stringOf(text->value()).disambiguation(), QStringLiteral("file menu"));

    // Translation data has no reset of its own.
    QVERIFY(!pane.manager.isResettable(comment));
    QVERIFY(!pane.manager.resetIconSubProperty(comment));
    QVERIFY(!pane.manager.resetFontSubProperty(comment));
    QVERIFY(!qobject_cast<ResetWidget *>(CcTest::openEditor<QWidget>(&pane.browser, comment)));
}

void TestDesignerPropertyComponents::iconValuesWithStatesThemeAndCache()
{
    Pane pane(m_core);
    auto *formBase = qobject_cast<FormWindowBase *>(m_form);
    QVERIFY(formBase);
    pane.manager.setObject(m_label);
    pane.factory.setFormWindowBase(formBase);
    QCOMPARE(pane.manager.formWindowBase(), formBase);
    QCOMPARE(pane.factory.formWindowBase(), formBase);

    const int type = DesignerPropertyManager::designerIconTypeId();
    QtVariantProperty *icon = pane.add(type, "icon");
    QCOMPARE(icon->valueType(), qMetaTypeId<PropertySheetIconValue>());
    QCOMPARE(names(icon->subProperties()),
             QStringList({"Normal Off", "Normal On", "Disabled Off", "Disabled On", "Active Off",
                          "Active On", "Selected Off", "Selected On", "Theme"}));
    QVERIFY(iconOf(icon->value()).isEmpty());
    QCOMPARE(icon->valueText(), QString());

    // One state through its part: the icon gets that pixmap, shown through the form's cache.
    QtVariantProperty *normalOff = sub(icon, QStringLiteral("Normal Off"));
    QtVariantProperty *selectedOn = sub(icon, QStringLiteral("Selected On"));
    QCOMPARE(normalOff->propertyType(), DesignerPropertyManager::designerPixmapTypeId());
    normalOff->setValue(QVariant::fromValue(PropertySheetPixmapValue(m_redPicture)));
    PropertySheetIconValue value = iconOf(icon->value());
    QCOMPARE(value.pixmap(QIcon::Normal, QIcon::Off).path(), m_redPicture);
    QCOMPARE(icon->valueText(), QStringLiteral("red.png"));
    QCOMPARE(normalOff->valueText(), QStringLiteral("red.png"));
    QVERIFY(normalOff->isModified());
    QVERIFY(!selectedOn->isModified());
    const QIcon cached = formBase->iconCache()->icon(value);
    QCOMPARE(icon->valueIcon().cacheKey(), cached.cacheKey());
    QCOMPARE(icon->valueIcon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));

    // The whole value fills the parts.
    PropertySheetIconValue twoStates {PropertySheetPixmapValue(m_redPicture)};
    twoStates.setPixmap(QIcon::Selected, QIcon::On, PropertySheetPixmapValue(m_bluePicture));
    icon->setValue(QVariant::fromValue(twoStates));
    QCOMPARE(qvariant_cast<PropertySheetPixmapValue>(selectedOn->value()).path(), m_bluePicture);
    QVERIFY(selectedOn->isModified());

    // A part reset clears that state only; other properties are no icon parts.
    QVERIFY(pane.manager.isResettable(selectedOn));
    QVERIFY(pane.manager.resetIconSubProperty(selectedOn));
    value = iconOf(icon->value());
    QCOMPARE(value.pixmap(QIcon::Selected, QIcon::On).path(), QString());
    QCOMPARE(value.pixmap(QIcon::Normal, QIcon::Off).path(), m_redPicture);
    QVERIFY(!selectedOn->isModified());
    QVERIFY(!pane.manager.resetIconSubProperty(icon));
    QVERIFY(!pane.manager.resetFontSubProperty(icon));

    // A theme, chosen through the pixmap editor's menu and the theme dialog.
    auto *editor = CcTest::openEditor<PixmapEditor>(&pane.browser, icon);
    QVERIFY(editor);
    QCOMPARE(editor->path(), m_redPicture);
    QVERIFY(editor->themeAction()->isVisible());
    QString dialogTitle;
    auto themed = CcTest::whenModal<IconThemeDialog>([&dialogTitle](IconThemeDialog *dialog) {
        dialogTitle = dialog->windowTitle();
        QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
        dialog->setTheme(QStringLiteral("edit-copy"));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    editor->themeAction()->trigger();
    QVERIFY(*themed);
    QCOMPARE(dialogTitle, QStringLiteral("Set Icon From Theme"));
    value = iconOf(icon->value());
    QCOMPARE(value.theme(), QStringLiteral("edit-copy"));
    QCOMPARE(value.pixmap(QIcon::Normal, QIcon::Off).path(), m_redPicture);
    QtVariantProperty *theme = sub(icon, QStringLiteral("Theme"));
    QCOMPARE(theme->value().toString(), QStringLiteral("edit-copy"));
    QVERIFY(theme->isModified());
    QVERIFY(pane.manager.isIconThemeSubProperty(theme));
    // The theme part is edited with Designer's theme editor.
    auto *themeEditor = CcTest::openEditor<IconThemeEditor>(&pane.browser, theme);
    QVERIFY(themeEditor);
    QCOMPARE(themeEditor->theme(), QStringLiteral("edit-copy"));
    QVERIFY(pane.manager.resetIconSubProperty(theme));
    QCOMPARE(iconOf(icon->value()).theme(), QString());

    // A file for the whole icon replaces its pixmaps.
    editor = CcTest::openEditor<PixmapEditor>(&pane.browser, icon);
    const QString picture = m_bluePicture;
    auto chosen = CcTest::whenModal<QFileDialog>(
            [picture](QFileDialog *dialog) { CcTest::answerFileDialog(dialog, picture); });
    editor->chooseFileAction()->trigger();
    QVERIFY(*chosen);
    value = iconOf(icon->value());
    QCOMPARE(value.paths().size(), 1);
    QCOMPARE(value.pixmap(QIcon::Normal, QIcon::Off).path(), m_bluePicture);
    QCOMPARE(editor->displayText(), QStringLiteral("blue.png"));

    // Designer's resource chooser opens from the same editor; cancelled, nothing changes.
    const PropertySheetIconValue beforeResource = iconOf(icon->value());
    auto resourceDialog = CcTest::whenModal<QDialog>(
            [](QDialog *dialog) { QMetaObject::invokeMethod(dialog, "reject"); });
    editor->chooseResourceAction()->trigger();
    QVERIFY(*resourceDialog);
    QCOMPARE(iconOf(icon->value()), beforeResource);

    // A theme alone is shown by name.
    PropertySheetIconValue themeOnly;
    themeOnly.setTheme(QStringLiteral("document-open"));
    icon->setValue(QVariant::fromValue(themeOnly));
    QCOMPARE(icon->valueText(), QStringLiteral("[Theme] document-open"));

    // Reloading resources repaints the icon and pixmap rows, not the others.
    QtVariantProperty *text = pane.add(DesignerPropertyManager::designerStringTypeId(), "text");
    QtVariantProperty *pixmap = pane.add(DesignerPropertyManager::designerPixmapTypeId(), "pixmap");
    pixmap->setValue(m_redPicture);
    QCOMPARE(pixmap->valueText(), QStringLiteral("red.png"));
    QList<QtProperty *> repainted;
    connect(&pane.manager, &QtAbstractPropertyManager::propertyChanged, this,
            [&repainted](QtProperty *property) { repainted.append(property); });
    pane.manager.reloadResourceProperties();
    QVERIFY(repainted.contains(icon));
    QVERIFY(repainted.contains(pixmap));
    QVERIFY(!repainted.contains(text));
}

void TestDesignerPropertyComponents::fontPartsResetOneByOne()
{
    Pane pane(m_core);
    pane.manager.setObject(m_label);
    QtVariantProperty *font = pane.add(QVariant::Font, "font");
    QtVariantProperty *size = sub(font, QStringLiteral("Point Size"));
    QtVariantProperty *bold = sub(font, QStringLiteral("Bold"));
    QtVariantProperty *underline = sub(font, QStringLiteral("Underline"));
    QVERIFY(size && bold && underline);
    QCOMPARE(pane.manager.parentProperty(bold), static_cast<QtProperty *>(font));
    QVERIFY(pane.manager.isResettable(bold));

    QList<QFont> reportedFonts;
    connect(&pane.manager,
            QOverload<QtProperty *, const QVariant &, bool>::of(
                    &DesignerPropertyManager::valueChanged),
            this, [&reportedFonts, font](QtProperty *property, const QVariant &value, bool) {
                if (property == font)
                    reportedFonts.append(qvariant_cast<QFont>(value));
            });
    bold->setValue(true);
    underline->setValue(true);
    size->setValue(m_label->font().pointSize() + 7);
    QFont f = qvariant_cast<QFont>(font->value());
    QCOMPARE(f.resolve(),
             uint(QFont::WeightResolved | QFont::UnderlineResolved | QFont::SizeResolved));
    QVERIFY(bold->isModified() && underline->isModified() && size->isModified());
    QVERIFY(!sub(font, QStringLiteral("Italic"))->isModified());
    // The font itself is reported for each edited part.
    QCOMPARE(reportedFonts.size(), 3);
    QVERIFY(reportedFonts.first().bold());

    // A part reset takes the object's default and drops the resolve bit.
    QVERIFY(pane.manager.resetFontSubProperty(size));
    f = qvariant_cast<QFont>(font->value());
    QCOMPARE(f.pointSize(), m_label->font().pointSize());
    QCOMPARE(f.resolve(), uint(QFont::WeightResolved | QFont::UnderlineResolved));
    QVERIFY(!size->isModified());
    QVERIFY(f.bold());

    // Through the reset button in the tree, as the user does it.
    int resets = 0;
    connect(&pane.factory, &DesignerEditorFactory::resetProperty, &pane.manager,
            [&pane, &resets](QtProperty *property) {
                ++resets;
                pane.manager.resetFontSubProperty(property);
            });
    auto *reset = CcTest::openEditor<ResetWidget>(&pane.browser, bold);
    QVERIFY(reset);
    QVERIFY(reset->resetButton()->isEnabled());
    reset->resetButton()->click();
    QCOMPARE(resets, 1);
    f = qvariant_cast<QFont>(font->value());
    QVERIFY(!f.bold());
    QCOMPARE(f.resolve(), uint(QFont::UnderlineResolved));
    QVERIFY(pane.manager.resetFontSubProperty(underline));
    QCOMPARE(qvariant_cast<QFont>(font->value()).resolve(), 0u);

    // Not a font part: nothing happens.
    QVERIFY(!pane.manager.resetFontSubProperty(font));
    QtVariantProperty *other = pane.add(QVariant::Int, "number");
    QVERIFY(!pane.manager.resetFontSubProperty(other));
}

void TestDesignerPropertyComponents::resetButtonsFollowTheModifiedState()
{
    Pane pane(m_core);
    pane.factory.setSpacing(0);
    QCOMPARE(pane.factory.spacing(), 0);
    QtVariantProperty *resettable =
            pane.add(DesignerPropertyManager::designerStringTypeId(), "resettable");
    QtVariantProperty *plain =
            pane.add(DesignerPropertyManager::designerStringTypeId(), "plain", false);
    QVERIFY(pane.manager.isResettable(resettable));
    QVERIFY(!pane.manager.isResettable(plain));

    // Not resettable: the bare editor.
    auto *plainEditor = CcTest::openEditor<TextEditor>(&pane.browser, plain);
    QVERIFY(plainEditor);
    QVERIFY(!qobject_cast<ResetWidget *>(plainEditor->parentWidget()));

    // Resettable: the editor inside a reset widget, whose button follows "modified".
    auto *reset = CcTest::openEditor<ResetWidget>(&pane.browser, resettable);
    QVERIFY(reset);
    QVERIFY(qobject_cast<TextEditor *>(reset->widget()));
    QCOMPARE(reset->property(), static_cast<QtProperty *>(resettable));
    QVERIFY(!reset->resetButton()->isEnabled());
    QVERIFY(!reset->resetButton()->icon().isNull());
    resettable->setModified(true);
    QVERIFY(reset->resetButton()->isEnabled());

    QList<QtProperty *> resets;
    connect(&pane.factory, &DesignerEditorFactory::resetProperty, this,
            [&resets](QtProperty *property) { resets.append(property); });
    QTest::mouseClick(reset->resetButton(), Qt::LeftButton);
    QCOMPARE(resets, QList<QtProperty *>({resettable}));
    resettable->setModified(false);
    QVERIFY(!reset->resetButton()->isEnabled());
    // The factory only reports; the value is the listener's to reset.
    resettable->setValue(QStringLiteral("kept"));
    QTest::mouseClick(reset->resetButton(), Qt::LeftButton); // disabled: nothing
    QCOMPARE(resets.size(), 1);
    QCOMPARE(stringOf(resettable->value()).value(), QStringLiteral("kept"));

    // The variant manager's own types take "resettable" too, and get the button.
    const int enumType = QtVariantPropertyManager::enumTypeId();
    QVERIFY(pane.manager.attributes(enumType).contains(QStringLiteral("resettable")));
    QVERIFY(pane.manager.attributes(enumType).contains(QStringLiteral("enumNames")));
    QCOMPARE(pane.manager.attributeType(enumType, QStringLiteral("resettable")),
             int(QVariant::Bool));
    QtVariantProperty *state = pane.add(enumType, "state");
    state->setAttribute(QStringLiteral("enumNames"),
                        QStringList({"Unchecked", "PartiallyChecked", "Checked"}));
    QCOMPARE(state->attributeValue(QStringLiteral("resettable")), QVariant(true));
    QVERIFY(CcTest::openEditor<ResetWidget>(&pane.browser, state));
}

void TestDesignerPropertyComponents::coexistsWithDesignersOwnPropertyEditor()
{
    // Designer's property editor shows a widget: its own private copies of the property
    // classes are alive in this process.
    QDesignerPropertyEditorInterface *designerEditor = m_core->propertyEditor();
    QVERIFY(designerEditor);
    designerEditor->setObject(m_label);
    QCOMPARE(designerEditor->object(), static_cast<QObject *>(m_label));
    const QObjectList theirManagers =
            objectsOfClass(designerEditor, "qdesigner_internal::DesignerPropertyManager");
    const QObjectList theirFactories =
            objectsOfClass(designerEditor, "qdesigner_internal::DesignerEditorFactory");
    const QObjectList theirBrowsers = objectsOfClass(designerEditor, "QtTreePropertyBrowser");
    QVERIFY(!theirManagers.isEmpty());
    QVERIFY(!theirFactories.isEmpty());
    QVERIFY(!theirBrowsers.isEmpty());

    Pane pane(m_core);
    pane.manager.setObject(m_label);
    // Same names, other classes: no cast crosses over, in either direction.
    for (QObject *theirs : theirManagers) {
        QVERIFY(theirs->metaObject() != &DesignerPropertyManager::staticMetaObject);
        QVERIFY(!qobject_cast<DesignerPropertyManager *>(theirs));
        QVERIFY(!qobject_cast<QtVariantPropertyManager *>(theirs));
        QVERIFY(!qobject_cast<QtAbstractPropertyManager *>(theirs));
        QVERIFY(!theirs->metaObject()->cast(&pane.manager));
    }
    for (QObject *theirs : theirFactories) {
        QVERIFY(!qobject_cast<DesignerEditorFactory *>(theirs));
        QVERIFY(!qobject_cast<QtVariantEditorFactory *>(theirs));
        QVERIFY(!theirs->metaObject()->cast(&pane.factory));
    }
    for (QObject *theirs : theirBrowsers) {
        QVERIFY(!qobject_cast<QtTreePropertyBrowser *>(theirs));
        QVERIFY(!qobject_cast<QtAbstractPropertyBrowser *>(theirs));
        QVERIFY(!theirs->metaObject()->cast(&pane.browser));
    }

    // The value types are registered once, under Designer's names.
    QCOMPARE(QMetaType::type("qdesigner_internal::PropertySheetStringValue"),
             DesignerPropertyManager::designerStringTypeId());
    QCOMPARE(QMetaType::type("qdesigner_internal::PropertySheetIconValue"),
             DesignerPropertyManager::designerIconTypeId());
    QCOMPARE(QMetaType::type("qdesigner_internal::PropertySheetPixmapValue"),
             DesignerPropertyManager::designerPixmapTypeId());
    QCOMPARE(QMetaType::type("QtIconMap"), qMetaTypeId<QtIconMap>());

    // Ours work while theirs run: edits on both sides, each pane keeps its own values.
    QtVariantProperty *text = pane.add(DesignerPropertyManager::designerStringTypeId(), "text");
    QtVariantProperty *icon = pane.add(DesignerPropertyManager::designerIconTypeId(), "icon");
    QtVariantProperty *font = pane.add(QVariant::Font, "font");
    auto *textEditor = CcTest::openEditor<TextEditor>(&pane.browser, text);
    QVERIFY(textEditor);
    QTest::keyClicks(textEditor->findChild<QLineEdit *>(), QStringLiteral("ours"));
    QCOMPARE(stringOf(text->value()).value(), QStringLiteral("ours"));
    m_form->cursor()->setWidgetProperty(
            m_label, QStringLiteral("text"),
            QVariant::fromValue(PropertySheetStringValue(QStringLiteral("theirs"))));
    designerEditor->setPropertyValue(
            QStringLiteral("text"),
            QVariant::fromValue(PropertySheetStringValue(QStringLiteral("theirs"))));
    QCOMPARE(m_label->property("text").toString(), QStringLiteral("theirs"));
    QCOMPARE(stringOf(text->value()).value(), QStringLiteral("ours"));
    icon->setValue(
            QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(m_redPicture))));
    sub(font, QStringLiteral("Bold"))->setValue(true);
    QVERIFY(qvariant_cast<QFont>(font->value()).bold());
    QVERIFY(!icon->valueIcon().isNull());
    designerEditor->setObject(m_form->mainContainer());
    designerEditor->setObject(m_label);
    QCOMPARE(designerEditor->object(), static_cast<QObject *>(m_label));
    QVERIFY(m_form->contents().contains(QStringLiteral("<string>theirs</string>")));
}

QTEST_MAIN(TestDesignerPropertyComponents)
#include "tst_designerpropertycomponents.moc"
