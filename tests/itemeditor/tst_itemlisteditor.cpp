#include "designertestcore.h"
#include "itemeditortestsupport.h"

#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "itemlisteditor.h"
#include "itempropertybrowser.h"
#include "pixmapeditor.h"
#include "resetwidget.h"
#include "texteditor.h"

#include <QtDesigner/private/formwindowbase_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>
#include <QtDesigner/private/textpropertyeditor_p.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDesignerFormWindowInterface>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>

using namespace qdesigner_internal;

namespace {

// Answers every translation request with nothing, and remembers "context|source".
class RecordingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        seen.insert(QLatin1String(context) + QLatin1Char('|') + QLatin1String(sourceText));
        return QString();
    }
    bool isEmpty() const override { return false; }
    mutable QSet<QString> seen;
};

QListWidgetItem *makeItem(const QString &text)
{
    auto *item = new QListWidgetItem(text);
    item->setData(Qt::DisplayPropertyRole, QVariant::fromValue(PropertySheetStringValue(text)));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
}

QtVariantProperty *propertyNamed(const AbstractItemEditor &editor, const char *name)
{
    const QList<QtVariantProperty *> properties = editor.properties();
    for (QtVariantProperty *property : properties) {
        if (property->propertyName() == QLatin1String(name))
            return property;
    }
    return nullptr;
}

QtVariantProperty *subPropertyNamed(QtProperty *property, const QString &name)
{
    const QList<QtProperty *> subs = property->subProperties();
    for (QtProperty *sub : subs) {
        if (sub->propertyName() == name)
            return static_cast<QtVariantProperty *>(sub);
    }
    return nullptr;
}

PropertySheetStringValue stringRole(const QListWidgetItem *item, int role)
{
    return qvariant_cast<PropertySheetStringValue>(item->data(role));
}

int freshItemFlags() { return int(QListWidgetItem().flags()); }

} // namespace

class TestItemListEditor : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();

    void formObjectsTextsAndTranslationContexts();
    void metaObjectOrder();
    void propertyTableBecomesProperties();
    void editingValuesInThePaneSetsAndMirrorsRoles();
    void defaultsAndResetRemoveTheRole();
    void listOperationsAndSelectionRules();
    void inPlaceRenameUpdatesTheDisplayValue();
    void reLayoutOnlyWhenTheLineCountChanges();
    void toggleButtonTexts();
    void cacheReloadRunsBothSlots();
    void rendersLikeADesignerItemEditor();

private:
    // An editor on the form's combo box holding the given items, set up with every kind of
    // property and its pane shown.
    ItemListEditor *makeEditor(const QStringList &texts);

    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_object = nullptr;
    QTemporaryDir m_dir;
    QString m_redPicture;
    QString m_bluePicture;
};

void TestItemListEditor::initTestCase()
{
    CcTest::usePluginModulesOnly({});
    CcTest::designerCore();
    m_form = CcTest::createFormWindow(CcTest::formXml(
            QStringLiteral("  <widget class=\"QComboBox\" name=\"combo\">\n"
                           "   <property name=\"geometry\"><rect><x>10</x><y>10</y>"
                           "<width>120</width><height>24</height></rect></property>\n"
                           "  </widget>\n")));
    QVERIFY(m_form);
    QVERIFY(qobject_cast<FormWindowBase *>(m_form));
    m_object = m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("combo"));
    QVERIFY(m_object);
    QVERIFY(m_dir.isValid());
    m_redPicture = m_dir.filePath(QStringLiteral("red.png"));
    m_bluePicture = m_dir.filePath(QStringLiteral("blue.png"));
    QVERIFY(CcTest::writeTestPicture(m_redPicture, Qt::red));
    QVERIFY(CcTest::writeTestPicture(m_bluePicture, Qt::blue));
}

void TestItemListEditor::cleanupTestCase() { CcTest::closeFormWindow(m_form); }

ItemListEditor *TestItemListEditor::makeEditor(const QStringList &texts)
{
    auto *editor = new ItemListEditor(m_form, nullptr);
    editor->setNewItemText(QStringLiteral("New Item"));
    for (const QString &text : texts)
        editor->listWidget()->addItem(makeItem(text));
    editor->setupEditor(m_object, CcTest::allItemProperties());
    editor->setPropertyBrowserVisible(true);
    editor->show();
    return editor;
}

void TestItemListEditor::formObjectsTextsAndTranslationContexts()
{
    RecordingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    ItemListEditor editor(m_form, nullptr);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(editor.objectName(), QStringLiteral("qdesigner_internal__ItemListEditor"));
    QCOMPARE(editor.size(), QSize(550, 360));
    QVERIFY(editor.windowTitle().isEmpty());
    QVERIFY(!(editor.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(editor.newItemText(), QString());
    QCOMPARE(editor.iconCache(), qobject_cast<FormWindowBase *>(m_form)->iconCache());

    // Layout: the splitter, holding the item part and the pane, is all verticalLayout_2 has.
    auto *outer = editor.findChild<QVBoxLayout *>(QStringLiteral("verticalLayout_2"));
    QVERIFY(outer);
    QCOMPARE(editor.layout(), outer);
    QCOMPARE(outer->count(), 1);
    QSplitter *splitter = editor.propertySplitter();
    QVERIFY(splitter);
    QCOMPARE(outer->itemAt(0)->widget(), splitter);
    QWidget *widget = editor.findChild<QWidget *>(QStringLiteral("widget"));
    QVERIFY(widget);
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0), widget);
    QCOMPARE(splitter->widget(1), static_cast<QWidget *>(editor.propertyBrowser()));
    QCOMPARE(splitter->sizePolicy().horizontalStretch(), 0);
    QCOMPARE(widget->sizePolicy().horizontalStretch(), 1);
    QCOMPARE(editor.propertyBrowser()->sizePolicy().horizontalStretch(), 0);

    auto *inner = widget->findChild<QVBoxLayout *>(QStringLiteral("verticalLayout"));
    QVERIFY(inner);
    QCOMPARE(inner->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(inner->itemAt(0)->widget(), static_cast<QWidget *>(editor.listWidget()));
    QCOMPARE(editor.listWidget()->objectName(), QStringLiteral("listWidget"));
    QVERIFY(editor.listWidget()->isEnabled());
    QCOMPARE(editor.listWidget()->toolTip(), QStringLiteral("Items List"));
    auto *buttons = widget->findChild<QHBoxLayout *>(QStringLiteral("buttonsLayout"));
    QVERIFY(buttons);
    QCOMPARE(inner->itemAt(1)->layout(), buttons);

    // The button row, in order, spacers included.
    struct Expected
    {
        const char *name;
        const char *className;
        const char *toolTip;
        const char *text;
        QSize spacer;
    };
    const Expected row[] = {
            {"newListItemButton", "QToolButton", "New Item", "&New", {}},
            {"deleteListItemButton", "QToolButton", "Delete Item", "&Delete", {}},
            {nullptr, nullptr, nullptr, nullptr, {16, 10}},
            {"moveListItemUpButton", "QToolButton", "Move Item Up", "U", {}},
            {"moveListItemDownButton", "QToolButton", "Move Item Down", "D", {}},
            {nullptr, nullptr, nullptr, nullptr, {40, 20}},
            {"showPropertiesButton", "QPushButton", "", "Properties &<<", {}},
    };
    QCOMPARE(buttons->count(), int(sizeof(row) / sizeof(row[0])));
    for (int i = 0; i < buttons->count(); ++i) {
        QLayoutItem *item = buttons->itemAt(i);
        if (!row[i].name) {
            QSpacerItem *spacer = item->spacerItem();
            QVERIFY(spacer);
            QCOMPARE(spacer->sizeHint(), row[i].spacer);
            QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
            QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
            continue;
        }
        auto *button = qobject_cast<QAbstractButton *>(item->widget());
        QVERIFY(button);
        QCOMPARE(button->objectName(), QLatin1String(row[i].name));
        QCOMPARE(button->metaObject()->className(), row[i].className);
        QCOMPARE(button->toolTip(), QLatin1String(row[i].toolTip));
        QCOMPARE(button->text(), QLatin1String(row[i].text));
        if (qobject_cast<QToolButton *>(button))
            QVERIFY2(!button->icon().isNull(), row[i].name); // Designer's own icons
    }

    // The pane starts hidden and sized for a name column holding an icon state.
    ItemPropertyBrowser *browser = editor.propertyBrowser();
    QVERIFY(browser->isHidden());
    QCOMPARE(browser->resizeMode(), QtTreePropertyBrowser::Interactive);
    const QFontMetrics metrics = browser->fontMetrics();
    const int nameWidth = metrics.horizontalAdvance(QStringLiteral("XX Icon Selected off"));
    QCOMPARE(browser->splitterPosition(), nameWidth);
    QCOMPARE(browser->sizeHint(),
             QSize(nameWidth
                           + metrics.horizontalAdvance(QStringLiteral("/this/is/some/random/path")),
                   1));

    // Texts are looked up in the form's and the classes' own contexts.
    const QString form = QStringLiteral("qdesigner_internal::ItemListEditor|");
    for (const char *text :
         {"Items List", "New Item", "&New", "Delete Item", "&Delete", "Move Item Up", "U",
          "Move Item Down", "D", "Properties &>>", "Properties &<<"})
        QVERIFY2(translator.seen.contains(form + QLatin1String(text)), text);
    QVERIFY(translator.seen.contains(QStringLiteral("ItemPropertyBrowser|XX Icon Selected off")));
}

void TestItemListEditor::metaObjectOrder()
{
    const QMetaObject *base = &AbstractItemEditor::staticMetaObject;
    QCOMPARE(base->className(), "qdesigner_internal::AbstractItemEditor");
    QCOMPARE(base->superClass(), &QWidget::staticMetaObject);
    const QByteArrayList baseSlots = {"propertyChanged(QtProperty*)", "resetProperty(QtProperty*)",
                                      "cacheReloaded()"};
    QCOMPARE(base->methodCount() - base->methodOffset(), baseSlots.size());
    for (int i = 0; i < baseSlots.size(); ++i) {
        const QMetaMethod method = base->method(base->methodOffset() + i);
        QCOMPARE(method.methodSignature(), baseSlots.at(i));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
    }

    const QMetaObject *list = &ItemListEditor::staticMetaObject;
    QCOMPARE(list->className(), "qdesigner_internal::ItemListEditor");
    QCOMPARE(list->superClass(), base);
    struct Expected
    {
        QMetaMethod::MethodType type;
        const char *signature;
    };
    const Expected methods[] = {
            {QMetaMethod::Signal, "indexChanged(int)"},
            {QMetaMethod::Signal, "itemChanged(int,int,QVariant)"},
            {QMetaMethod::Signal, "itemInserted(int)"},
            {QMetaMethod::Signal, "itemDeleted(int)"},
            {QMetaMethod::Signal, "itemMovedUp(int)"},
            {QMetaMethod::Signal, "itemMovedDown(int)"},
            {QMetaMethod::Slot, "on_newListItemButton_clicked()"},
            {QMetaMethod::Slot, "on_deleteListItemButton_clicked()"},
            {QMetaMethod::Slot, "on_moveListItemUpButton_clicked()"},
            {QMetaMethod::Slot, "on_moveListItemDownButton_clicked()"},
            {QMetaMethod::Slot, "on_listWidget_currentRowChanged()"},
            {QMetaMethod::Slot, "on_listWidget_itemChanged(QListWidgetItem*)"},
            {QMetaMethod::Slot, "togglePropertyBrowser()"},
            {QMetaMethod::Slot, "cacheReloaded()"},
    };
    const int count = int(sizeof(methods) / sizeof(methods[0]));
    QCOMPARE(list->methodCount() - list->methodOffset(), count);
    for (int i = 0; i < count; ++i) {
        const QMetaMethod method = list->method(list->methodOffset() + i);
        QCOMPARE(method.methodSignature(), QByteArray(methods[i].signature));
        QCOMPARE(method.methodType(), methods[i].type);
    }
    const QMetaMethod itemChanged = list->method(list->methodOffset() + 1);
    QCOMPARE(itemChanged.parameterNames(), QByteArrayList({"idx", "role", "v"}));
    QCOMPARE(list->method(list->methodOffset() + 11).parameterNames(), QByteArrayList({"item"}));

    QCOMPARE(ItemPropertyBrowser::staticMetaObject.className(),
             "qdesigner_internal::ItemPropertyBrowser");
    QCOMPARE(ItemPropertyBrowser::staticMetaObject.superClass(),
             &QtTreePropertyBrowser::staticMetaObject);
    QCOMPARE(int(ItemFlagsRole), 0x13370551);
}

void TestItemListEditor::propertyTableBecomesProperties()
{
    QScopedPointer<ItemListEditor> editor(makeEditor({QStringLiteral("One")}));
    const QList<QtVariantProperty *> properties = editor->properties();
    struct Expected
    {
        const char *name;
        int role;
        int type;
        QVariant validationMode;
    };
    const int stringType = DesignerPropertyManager::designerStringTypeId();
    const Expected expected[] = {
            {"text", Qt::DisplayPropertyRole, stringType, int(ValidationMultiLine)},
            {"icon", Qt::DecorationPropertyRole, DesignerPropertyManager::designerIconTypeId(), {}},
            {"toolTip", Qt::ToolTipPropertyRole, stringType, int(ValidationRichText)},
            {"statusTip", Qt::StatusTipPropertyRole, stringType, int(ValidationSingleLine)},
            {"whatsThis", Qt::WhatsThisPropertyRole, stringType, int(ValidationRichText)},
            {"font", Qt::FontRole, QVariant::Font, {}},
            {"checkState", Qt::CheckStateRole, QtVariantPropertyManager::enumTypeId(), {}},
            {"flags", ItemFlagsRole, QtVariantPropertyManager::flagTypeId(), {}},
    };
    const int count = int(sizeof(expected) / sizeof(expected[0]));
    QCOMPARE(properties.size(), count);
    for (int i = 0; i < count; ++i) {
        QtVariantProperty *property = properties.at(i);
        QCOMPARE(property->propertyName(), QLatin1String(expected[i].name));
        QCOMPARE(property->propertyType(), expected[i].type);
        QCOMPARE(editor->propertyRole(property), expected[i].role);
        QCOMPARE(property->attributeValue(QStringLiteral("resettable")), QVariant(true));
        if (expected[i].validationMode.isValid())
            QCOMPARE(property->attributeValue(QStringLiteral("validationMode")).toInt(),
                     expected[i].validationMode.toInt());
    }
    QCOMPARE(propertyNamed(*editor, "flags")->attributeValue(QStringLiteral("flagNames")),
             QVariant(QStringList({"Selectable", "Editable", "DragEnabled", "DropEnabled",
                                   "UserCheckable", "Enabled", "Tristate"})));
    QCOMPARE(propertyNamed(*editor, "checkState")->attributeValue(QStringLiteral("enumNames")),
             QVariant(QStringList({"Unchecked", "PartiallyChecked", "Checked"})));

    // The pane shows the rows in table order, filled from row 0 (selected by setupEditor).
    QCOMPARE(editor->listWidget()->currentRow(), 0);
    const QList<QtBrowserItem *> top = editor->propertyBrowser()->topLevelItems();
    QCOMPARE(top.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(top.at(i)->property(), static_cast<QtProperty *>(properties.at(i)));
    QtVariantProperty *text = propertyNamed(*editor, "text");
    QCOMPARE(qvariant_cast<PropertySheetStringValue>(text->value()).value(), QStringLiteral("One"));
    QVERIFY(text->isModified());
    QtVariantProperty *flags = propertyNamed(*editor, "flags");
    QCOMPARE(flags->value().toInt(), freshItemFlags()); // no flags role: the default shows
    QVERIFY(!flags->isModified());
    QVERIFY(!propertyNamed(*editor, "icon")->isModified());

    // A second item with other values: the pane is updated, not filled twice.
    auto *second = makeItem(QStringLiteral("Two"));
    second->setData(Qt::CheckStateRole, Qt::Checked);
    editor->listWidget()->addItem(second);
    editor->listWidget()->setCurrentRow(1);
    QCOMPARE(editor->propertyBrowser()->topLevelItems().size(), count);
    QCOMPARE(propertyNamed(*editor, "checkState")->value().toInt(), int(Qt::Checked));
    QVERIFY(propertyNamed(*editor, "checkState")->isModified());
    QCOMPARE(qvariant_cast<PropertySheetStringValue>(text->value()).value(), QStringLiteral("Two"));
}

void TestItemListEditor::editingValuesInThePaneSetsAndMirrorsRoles()
{
    QScopedPointer<ItemListEditor> editor(
            makeEditor({QStringLiteral("One"), QStringLiteral("Two")}));
    editor->listWidget()->setCurrentRow(1);
    QListWidgetItem *item = editor->listWidget()->item(1);
    QSignalSpy changed(editor.data(), &ItemListEditor::itemChanged);
    ItemPropertyBrowser *browser = editor->propertyBrowser();

    // Strings, typed into the pane: the line edit turns "\n" into a line break only where
    // the validation mode allows several lines.
    struct StringCase
    {
        const char *property;
        int role;
        int plainRole;
        TextPropertyValidationMode mode;
        bool hasDialog;
        const char *typed;
        const char *stored;
    };
    const StringCase cases[] = {
            {"text", Qt::DisplayPropertyRole, Qt::EditRole, ValidationMultiLine, true,
             "Two\\nlines", "Two\nlines"},
            {"toolTip", Qt::ToolTipPropertyRole, Qt::ToolTipRole, ValidationRichText, true,
             "<b>tip</b>", "<b>tip</b>"},
            {"statusTip", Qt::StatusTipPropertyRole, Qt::StatusTipRole, ValidationSingleLine, false,
             "status", "status"},
            {"whatsThis", Qt::WhatsThisPropertyRole, Qt::WhatsThisRole, ValidationRichText, true,
             "<i>what</i>", "<i>what</i>"},
    };
    for (const StringCase &c : cases) {
        QtVariantProperty *property = propertyNamed(*editor, c.property);
        auto *textEditor = CcTest::openEditor<TextEditor>(browser, property);
        QVERIFY2(textEditor, c.property);
        QCOMPARE(textEditor->textPropertyValidationMode(), c.mode);
        QCOMPARE(textEditor->dialogButton()->isVisibleTo(textEditor), c.hasDialog);
        // A reset button sits beside every editor of the pane.
        QVERIFY(qobject_cast<ResetWidget *>(textEditor->parentWidget()));
        QLineEdit *line = textEditor->findChild<QLineEdit *>();
        QVERIFY(line);
        line->selectAll();
        QTest::keyClicks(line, QLatin1String(c.typed));
        QCOMPARE(stringRole(item, c.role).value(), QLatin1String(c.stored));
        QVERIFY(stringRole(item, c.role).translatable());
        QCOMPARE(item->data(c.plainRole).toString(), QLatin1String(c.stored));
        QVERIFY(property->isModified());
        // The last two signals: the designer value, then its plain twin.
        QVERIFY(changed.size() >= 2);
        const QList<QVariant> valueSignal = changed.at(changed.size() - 2);
        const QList<QVariant> plainSignal = changed.last();
        QCOMPARE(valueSignal.at(0).toInt(), 1);
        QCOMPARE(valueSignal.at(1).toInt(), c.role);
        QCOMPARE(qvariant_cast<PropertySheetStringValue>(valueSignal.at(2)).value(),
                 QLatin1String(c.stored));
        QCOMPARE(plainSignal.at(1).toInt(), c.plainRole);
        QCOMPARE(plainSignal.at(2).toString(), QLatin1String(c.stored));
    }
    QCOMPARE(item->text(), QStringLiteral("Two\nlines"));
    QCOMPARE(editor->listWidget()->item(0)->text(), QStringLiteral("One")); // only the current

    // Icon: a file chosen through the pixmap editor's menu and Designer's file dialog.
    QtVariantProperty *icon = propertyNamed(*editor, "icon");
    auto *pixmapEditor = CcTest::openEditor<PixmapEditor>(browser, icon);
    QVERIFY(pixmapEditor);
    const QString picture = m_redPicture;
    auto answered = CcTest::whenModal<QFileDialog>(
            [picture](QFileDialog *dialog) { CcTest::answerFileDialog(dialog, picture); });
    pixmapEditor->chooseFileAction()->trigger();
    QVERIFY(*answered);
    const auto iconValue =
            qvariant_cast<PropertySheetIconValue>(item->data(Qt::DecorationPropertyRole));
    QCOMPARE(iconValue.pixmap(QIcon::Normal, QIcon::Off).path(), m_redPicture);
    const QIcon shown = qvariant_cast<QIcon>(item->data(Qt::DecorationRole));
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
    QVERIFY(icon->isModified());
    QCOMPARE(icon->valueText(), QStringLiteral("red.png"));

    // Font: one part ticked in the tree; the item's font is resolved against the list's.
    QtVariantProperty *font = propertyNamed(*editor, "font");
    auto *boldBox =
            CcTest::openEditor<QCheckBox>(browser, subPropertyNamed(font, QStringLiteral("Bold")));
    QVERIFY(boldBox);
    boldBox->click();
    const QFont itemFont = qvariant_cast<QFont>(item->data(Qt::FontRole));
    QVERIFY(itemFont.bold());
    QVERIFY(itemFont.resolve() & QFont::WeightResolved);
    QCOMPARE(itemFont.family(), editor->listWidget()->font().family());
    QVERIFY(font->isModified());
    QCOMPARE(changed.last().at(1).toInt(), int(Qt::FontRole));

    // Flags, with the bit of one named flag cleared through its sub-property.
    QtVariantProperty *flags = propertyNamed(*editor, "flags");
    auto *enabledBox = CcTest::openEditor<QCheckBox>(
            browser, subPropertyNamed(flags, QStringLiteral("Enabled")));
    QVERIFY(enabledBox);
    QVERIFY(enabledBox->isChecked());
    enabledBox->click();
    QCOMPARE(item->data(ItemFlagsRole).toInt(), freshItemFlags() & ~int(Qt::ItemIsEnabled));
    QVERIFY(flags->isModified());

    // Enum: check state chosen by name in the tree.
    QtVariantProperty *checkState = propertyNamed(*editor, "checkState");
    auto *stateBox = CcTest::openEditor<QComboBox>(browser, checkState);
    QVERIFY(stateBox);
    QCOMPARE(stateBox->count(), 3);
    stateBox->setCurrentIndex(stateBox->findText(QStringLiteral("Checked")));
    QCOMPARE(item->data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(checkState->valueText(), QStringLiteral("Checked"));
    QVERIFY(checkState->isModified());

    // None of this reached the other row; selecting it shows its own values again.
    QListWidgetItem *first = editor->listWidget()->item(0);
    QVERIFY(!first->data(ItemFlagsRole).isValid());
    editor->listWidget()->setCurrentRow(0);
    QVERIFY(!icon->isModified());
    QVERIFY(qvariant_cast<PropertySheetIconValue>(icon->value()).isEmpty());
    editor->listWidget()->setCurrentRow(1);
    QVERIFY(icon->isModified());
    QCOMPARE(checkState->value().toInt(), 2);
}

void TestItemListEditor::defaultsAndResetRemoveTheRole()
{
    QScopedPointer<ItemListEditor> editor(makeEditor({QStringLiteral("One")}));
    QListWidgetItem *item = editor->listWidget()->item(0);
    ItemPropertyBrowser *browser = editor->propertyBrowser();

    // Values equal to the defaults remove the role and show the property as not modified.
    QtVariantProperty *flags = propertyNamed(*editor, "flags");
    flags->setValue(freshItemFlags() & ~int(Qt::ItemIsDragEnabled));
    QVERIFY(item->data(ItemFlagsRole).isValid());
    flags->setValue(freshItemFlags());
    QVERIFY(!item->data(ItemFlagsRole).isValid());
    QVERIFY(!flags->isModified());
    QCOMPARE(flags->value().toInt(), freshItemFlags());

    QtVariantProperty *icon = propertyNamed(*editor, "icon");
    icon->setValue(
            QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(m_redPicture))));
    QVERIFY(item->data(Qt::DecorationPropertyRole).isValid());
    QVERIFY(!qvariant_cast<QIcon>(item->data(Qt::DecorationRole)).isNull());
    icon->setValue(QVariant::fromValue(PropertySheetIconValue()));
    QVERIFY(!item->data(Qt::DecorationPropertyRole).isValid());
    QVERIFY(qvariant_cast<QIcon>(item->data(Qt::DecorationRole)).isNull());
    QVERIFY(!icon->isModified());

    QtVariantProperty *font = propertyNamed(*editor, "font");
    QtVariantProperty *italic = subPropertyNamed(font, QStringLiteral("Italic"));
    italic->setValue(true);
    QVERIFY(item->data(Qt::FontRole).isValid());
    QVERIFY(font->isModified());
    // Resetting the only part that was set leaves nothing resolved: the role goes.
    auto *italicReset = CcTest::openEditor<ResetWidget>(browser, italic);
    QVERIFY(italicReset);
    QVERIFY(italic->isModified());
    QVERIFY(italicReset->resetButton()->isEnabled());
    italicReset->resetButton()->click();
    QCOMPARE(qvariant_cast<QFont>(font->value()).resolve(), 0u);
    QVERIFY(!item->data(Qt::FontRole).isValid());
    QVERIFY(!font->isModified());

    // The reset button of a whole property, clicked in the pane.
    QtVariantProperty *text = propertyNamed(*editor, "text");
    QVERIFY(text->isModified());
    auto *reset = CcTest::openEditor<ResetWidget>(browser, text);
    QVERIFY(reset);
    QVERIFY(reset->resetButton()->isEnabled());
    QSignalSpy changed(editor.data(), &ItemListEditor::itemChanged);
    reset->resetButton()->click();
    QVERIFY(!item->data(Qt::DisplayPropertyRole).isValid());
    QCOMPARE(item->text(), QString());
    QVERIFY(!text->isModified());
    QCOMPARE(qvariant_cast<PropertySheetStringValue>(text->value()).value(), QString());
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.at(0).at(1).toInt(), int(Qt::DisplayPropertyRole));
    QVERIFY(!changed.at(0).at(2).isValid());
    QCOMPARE(changed.at(1).at(1).toInt(), int(Qt::EditRole));
    // Not modified any more: nothing left to reset.
    reset = CcTest::openEditor<ResetWidget>(browser, text);
    QVERIFY(!reset->resetButton()->isEnabled());

    // Reset mirrors empty values into the plain roles of icons and tips.
    icon->setValue(
            QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(m_redPicture))));
    QtVariantProperty *toolTip = propertyNamed(*editor, "toolTip");
    toolTip->setValue(QVariant::fromValue(PropertySheetStringValue(QStringLiteral("tip"))));
    QCOMPARE(item->toolTip(), QStringLiteral("tip"));
    CcTest::openEditor<ResetWidget>(browser, toolTip)->resetButton()->click();
    QVERIFY(!item->data(Qt::ToolTipPropertyRole).isValid());
    QCOMPARE(item->toolTip(), QString());
    CcTest::openEditor<ResetWidget>(browser, icon)->resetButton()->click();
    QVERIFY(!item->data(Qt::DecorationPropertyRole).isValid());
    QVERIFY(qvariant_cast<QIcon>(item->data(Qt::DecorationRole)).isNull());
    QVERIFY(!icon->isModified());

    // An icon part's reset clears that part only, and the icon is still set.
    PropertySheetIconValue twoStates {PropertySheetPixmapValue(m_redPicture)};
    twoStates.setPixmap(QIcon::Normal, QIcon::On, PropertySheetPixmapValue(m_bluePicture));
    icon->setValue(QVariant::fromValue(twoStates));
    QtProperty *normalOn = subPropertyNamed(icon, QStringLiteral("Normal On"));
    QVERIFY(normalOn);
    CcTest::openEditor<ResetWidget>(browser, normalOn)->resetButton()->click();
    const auto left = qvariant_cast<PropertySheetIconValue>(item->data(Qt::DecorationPropertyRole));
    QCOMPARE(left.pixmap(QIcon::Normal, QIcon::On).path(), QString());
    QCOMPARE(left.pixmap(QIcon::Normal, QIcon::Off).path(), m_redPicture);
    QVERIFY(icon->isModified());

    // Flags reset to a fresh item's.
    flags->setValue(0);
    CcTest::openEditor<ResetWidget>(browser, flags)->resetButton()->click();
    QVERIFY(!item->data(ItemFlagsRole).isValid());
    QCOMPARE(flags->value().toInt(), freshItemFlags());
}

void TestItemListEditor::listOperationsAndSelectionRules()
{
    QScopedPointer<ItemListEditor> editor(
            makeEditor({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QListWidget *list = editor->listWidget();
    auto *newButton = editor->findChild<QToolButton *>(QStringLiteral("newListItemButton"));
    auto *deleteButton = editor->findChild<QToolButton *>(QStringLiteral("deleteListItemButton"));
    auto *upButton = editor->findChild<QToolButton *>(QStringLiteral("moveListItemUpButton"));
    auto *downButton = editor->findChild<QToolButton *>(QStringLiteral("moveListItemDownButton"));
    QSignalSpy inserted(editor.data(), &ItemListEditor::itemInserted);
    QSignalSpy deleted(editor.data(), &ItemListEditor::itemDeleted);
    QSignalSpy movedUp(editor.data(), &ItemListEditor::itemMovedUp);
    QSignalSpy movedDown(editor.data(), &ItemListEditor::itemMovedDown);
    QSignalSpy index(editor.data(), &ItemListEditor::indexChanged);
    auto texts = [list] {
        QStringList result;
        for (int i = 0; i < list->count(); ++i)
            result.append(list->item(i)->text());
        return result;
    };

    // Row 0: up is disabled, down enabled.
    QCOMPARE(list->currentRow(), 0);
    QVERIFY(!upButton->isEnabled());
    QVERIFY(downButton->isEnabled());
    QVERIFY(deleteButton->isEnabled());

    // setCurrentIndex selects silently; a user's selection is reported.
    editor->setCurrentIndex(2);
    QCOMPARE(list->currentRow(), 2);
    QCOMPARE(index.size(), 0);
    QVERIFY(upButton->isEnabled());
    QVERIFY(!downButton->isEnabled());
    list->setCurrentRow(1);
    QCOMPARE(index.size(), 1);
    QCOMPARE(index.last().at(0).toInt(), 1);

    // New in the middle goes below the current row, is made current and opened for editing.
    QTest::mouseClick(newButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"A", "B", "New Item", "C"}));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.last().at(0).toInt(), 2);
    QCOMPARE(list->currentRow(), 2);
    QListWidgetItem *made = list->item(2);
    QCOMPARE(stringRole(made, Qt::DisplayPropertyRole).value(), QStringLiteral("New Item"));
    QVERIFY(stringRole(made, Qt::DisplayPropertyRole).translatable());
    QVERIFY(made->flags() & Qt::ItemIsEditable);
    QLineEdit *inPlace = list->findChild<QLineEdit *>();
    QVERIFY(inPlace && inPlace->isVisible());
    QCOMPARE(inPlace->text(), QStringLiteral("New Item"));
    QTest::keyClick(inPlace, Qt::Key_Escape);
    CcTest::settle();

    // New on the last row appends.
    list->setCurrentRow(list->count() - 1);
    QTest::mouseClick(newButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"A", "B", "New Item", "C", "New Item"}));
    QCOMPARE(inserted.last().at(0).toInt(), 4);
    QCOMPARE(list->currentRow(), 4);
    QTest::keyClick(list->findChild<QLineEdit *>(), Qt::Key_Escape);
    CcTest::settle();

    // New with no current row inserts at row 0.
    list->setCurrentRow(-1);
    QVERIFY(!deleteButton->isEnabled() && !upButton->isEnabled() && !downButton->isEnabled());
    QTest::mouseClick(newButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"New Item", "A", "B", "New Item", "C", "New Item"}));
    QCOMPARE(inserted.last().at(0).toInt(), 0);
    QCOMPARE(list->currentRow(), 0);
    QTest::keyClick(list->findChild<QLineEdit *>(), Qt::Key_Escape);
    CcTest::settle();

    // Up and down move the item and keep it current; the signal names the old row.
    list->setCurrentRow(4); // "C"
    QTest::mouseClick(upButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"New Item", "A", "B", "C", "New Item", "New Item"}));
    QCOMPARE(list->currentRow(), 3);
    QCOMPARE(movedUp.size(), 1);
    QCOMPARE(movedUp.last().at(0).toInt(), 4);
    QTest::mouseClick(downButton, Qt::LeftButton);
    QTest::mouseClick(downButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"New Item", "A", "B", "New Item", "New Item", "C"}));
    QCOMPARE(list->currentRow(), 5);
    QCOMPARE(movedDown.size(), 2);
    QCOMPARE(movedDown.at(0).at(0).toInt(), 3);
    QCOMPARE(movedDown.at(1).at(0).toInt(), 4);
    QVERIFY(!downButton->isEnabled()); // last row
    QTest::mouseClick(downButton, Qt::LeftButton);
    QCOMPARE(movedDown.size(), 2);
    list->setCurrentRow(0);
    QTest::mouseClick(upButton, Qt::LeftButton); // disabled at row 0
    QCOMPARE(movedUp.size(), 1);

    // Deleting a middle row keeps that row number selected.
    list->setCurrentRow(1);
    QTest::mouseClick(deleteButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"New Item", "B", "New Item", "New Item", "C"}));
    QCOMPARE(deleted.last().at(0).toInt(), 1);
    QCOMPARE(list->currentRow(), 1);
    QCOMPARE(qvariant_cast<PropertySheetStringValue>(propertyNamed(*editor, "text")->value())
                     .value(),
             QStringLiteral("B"));

    // Deleting the last row of several selects the new last row.
    list->setCurrentRow(4);
    QTest::mouseClick(deleteButton, Qt::LeftButton);
    QCOMPARE(texts(), QStringList({"New Item", "B", "New Item", "New Item"}));
    QCOMPARE(deleted.last().at(0).toInt(), 4);
    QCOMPARE(list->currentRow(), 3);
    QVERIFY(!downButton->isEnabled());

    // Deleting everything leaves an empty list, no enabled buttons and an empty pane.
    while (list->count())
        QTest::mouseClick(deleteButton, Qt::LeftButton);
    QCOMPARE(deleted.size(), 6);
    QCOMPARE(deleted.last().at(0).toInt(), 0);
    QCOMPARE(list->currentRow(), -1);
    QVERIFY(!deleteButton->isEnabled() && !upButton->isEnabled() && !downButton->isEnabled());
    QVERIFY(newButton->isEnabled());
    QVERIFY(editor->propertyBrowser()->topLevelItems().isEmpty());

    // And the pane comes back for the next new item.
    QTest::mouseClick(newButton, Qt::LeftButton);
    QCOMPARE(list->count(), 1);
    QCOMPARE(editor->propertyBrowser()->topLevelItems().size(), editor->properties().size());
}

void TestItemListEditor::inPlaceRenameUpdatesTheDisplayValue()
{
    QScopedPointer<ItemListEditor> editor(makeEditor({QStringLiteral("A"), QStringLiteral("B")}));
    QListWidget *list = editor->listWidget();
    // Translation data of the value survives a rename.
    PropertySheetStringValue value(QStringLiteral("B"), false, QStringLiteral("dis"),
                                   QStringLiteral("note"));
    list->setCurrentRow(0);
    QListWidgetItem *item = list->item(1);
    item->setData(Qt::DisplayPropertyRole, QVariant::fromValue(value));
    list->setCurrentRow(1);
    QSignalSpy changed(editor.data(), &ItemListEditor::itemChanged);
    list->editItem(item);
    QLineEdit *inPlace = list->findChild<QLineEdit *>();
    QVERIFY(inPlace);
    inPlace->selectAll();
    QTest::keyClicks(inPlace, QStringLiteral("Renamed"));
    QTest::keyClick(inPlace, Qt::Key_Return);
    CcTest::settle();
    QCOMPARE(item->text(), QStringLiteral("Renamed"));
    const PropertySheetStringValue stored = stringRole(item, Qt::DisplayPropertyRole);
    QCOMPARE(stored.value(), QStringLiteral("Renamed"));
    QVERIFY(!stored.translatable());
    QCOMPARE(stored.disambiguation(), QStringLiteral("dis"));
    QCOMPARE(stored.comment(), QStringLiteral("note"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).toInt(), 1);
    QCOMPARE(changed.first().at(1).toInt(), int(Qt::DisplayPropertyRole));
    QCOMPARE(qvariant_cast<PropertySheetStringValue>(changed.first().at(2)), stored);
    // The pane follows.
    QCOMPARE(qvariant_cast<PropertySheetStringValue>(propertyNamed(*editor, "text")->value()),
             stored);
}

void TestItemListEditor::reLayoutOnlyWhenTheLineCountChanges()
{
    QScopedPointer<ItemListEditor> editor(makeEditor({QStringLiteral("A"), QStringLiteral("B")}));
    QListWidget *list = editor->listWidget();
    list->setCurrentRow(0);
    QApplication::processEvents();
    QListWidgetItem *item = list->item(0);
    const int oneLine = list->visualItemRect(item).height();
    const int secondTop = list->visualItemRect(list->item(1)).top();
    QVERIFY(oneLine > 0);

    // Same number of lines: nothing is laid out again, the rows keep their places.
    editor->setItemData(Qt::EditRole, QStringLiteral("A longer single line"));
    QCOMPARE(list->visualItemRect(item).height(), oneLine);
    QCOMPARE(list->visualItemRect(list->item(1)).top(), secondTop);

    // Two lines: laid out at once, the row grows and pushes the next one down.
    editor->setItemData(Qt::EditRole, QStringLiteral("Two\nlines"));
    QVERIFY(list->visualItemRect(item).height() > oneLine);
    QVERIFY(list->visualItemRect(list->item(1)).top() > secondTop);
    const int twoLines = list->visualItemRect(item).height();

    // Still two lines: no new layout.
    editor->setItemData(Qt::EditRole, QStringLiteral("Other\ntext"));
    QCOMPARE(list->visualItemRect(item).height(), twoLines);

    // Back to one line.
    editor->setItemData(Qt::EditRole, QStringLiteral("One"));
    QCOMPARE(list->visualItemRect(item).height(), oneLine);

    // A font always lays out: a much larger font makes the row taller at once.
    QFont big = list->font();
    big.setPointSize(list->font().pointSize() * 3);
    editor->setItemData(Qt::FontRole, big);
    QVERIFY(list->visualItemRect(item).height() > oneLine);
}

void TestItemListEditor::toggleButtonTexts()
{
    ItemListEditor editor(m_form, nullptr);
    editor.show();
    auto *button = editor.findChild<QPushButton *>(QStringLiteral("showPropertiesButton"));
    QVERIFY(button);
    QVERIFY(!editor.isPropertyBrowserVisible());
    QVERIFY(!editor.propertyBrowser()->isVisible());
    QCOMPARE(button->text(), QStringLiteral("Properties &<<"));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(editor.propertyBrowser()->isVisible());
    QCOMPARE(button->text(), QStringLiteral("Properties &>>"));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!editor.propertyBrowser()->isVisible());
    QCOMPARE(button->text(), QStringLiteral("Properties &<<"));
    editor.setPropertyBrowserVisible(true);
    QCOMPARE(button->text(), QStringLiteral("Properties &>>"));
    QVERIFY(editor.propertyBrowser()->isVisible());
}

void TestItemListEditor::cacheReloadRunsBothSlots()
{
    QScopedPointer<ItemListEditor> editor(makeEditor({QStringLiteral("A")}));
    QListWidgetItem *item = editor->listWidget()->item(0);
    // The designer value is there, the displayed icon is not (yet).
    item->setData(
            Qt::DecorationPropertyRole,
            QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(m_bluePicture))));
    item->setData(Qt::DecorationRole, QVariant());
    editor->listWidget()->setCurrentRow(0);
    QtVariantProperty *icon = propertyNamed(*editor, "icon");
    editor->listWidget()->setCurrentRow(-1);
    editor->listWidget()->setCurrentRow(0);
    QVERIFY(icon->isModified());
    bool iconRepainted = false;
    connect(editor->propertyManager(), &QtAbstractPropertyManager::propertyChanged, editor.data(),
            [&](QtProperty *property) { iconRepainted |= property == icon; });
    emit editor->iconCache()->reloaded();
    // The list editor's slot showed the item's icon from the cache ...
    const QIcon shown = qvariant_cast<QIcon>(item->data(Qt::DecorationRole));
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::blue));
    // ... and the base's made the manager show its icon properties anew.
    QVERIFY(iconRepainted);
}

void TestItemListEditor::rendersLikeADesignerItemEditor()
{
    QScopedPointer<ItemListEditor> editor(makeEditor({}));
    QListWidget *list = editor->listWidget();
    const QStringList names = {QStringLiteral("Apple"), QStringLiteral("Banana"),
                               QStringLiteral("Cherry")};
    for (const QString &name : names)
        list->addItem(makeItem(name));
    list->setCurrentRow(0);
    propertyNamed(*editor, "icon")
            ->setValue(QVariant::fromValue(
                    PropertySheetIconValue(PropertySheetPixmapValue(m_redPicture))));
    propertyNamed(*editor, "toolTip")
            ->setValue(QVariant::fromValue(PropertySheetStringValue(QStringLiteral("A fruit"))));
    editor->resize(550, 360);
    QApplication::processEvents();
    const QImage image = editor->grab().toImage();
    QCOMPARE(image.size(), QSize(550, 360) * editor->devicePixelRatioF());
    const QString path = QStringLiteral(CC_SCREENSHOT_DIR "/itemlisteditor.png");
    QVERIFY(image.save(path));
    // The icon is drawn in the list: a red pixel (tinted, as the row is selected) lies at
    // the start of the first row.
    const QRect row = list->visualItemRect(list->item(0));
    const QPoint origin = list->viewport()->mapTo(editor.data(), row.topLeft());
    bool red = false;
    for (int x = origin.x(); x < origin.x() + 24 && !red; ++x) {
        for (int y = origin.y(); y < origin.y() + row.height() && !red; ++y) {
            const QColor c = image.pixelColor(x, y);
            red = c.red() > 120 && c.red() > 2 * c.green() && c.red() > 2 * c.blue();
        }
    }
    QVERIFY(red);
}

QTEST_MAIN(TestItemListEditor)
#include "tst_itemlisteditor.moc"
