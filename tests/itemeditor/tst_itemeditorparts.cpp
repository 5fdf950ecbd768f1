// The parts of the item editors in a Designer core without plug-ins, on one form: Designer's
// property manager and editors on a tree browser, as the editors' pane uses them, and the
// list editor with its pane.

#include "qtcompat.h"

#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "designertestcore.h"
#include "iconthemedialog.h"
#include "itemeditortestsupport.h"
#include "itemlisteditor.h"
#include "itempropertybrowser.h"
#include "linguistmessages.h"
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

using namespace qdesigner_internal;
using CcTest::openEditor;
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

int freshItemFlags() { return int(QListWidgetItem().flags()); }

// What an item shows under a plain role: the text, or the colour in the middle of the icon.
QString shownAs(const QListWidgetItem *item, int role)
{
    if (role != Qt::DecorationRole)
        return item->data(role).toString();
    const QIcon icon = qvariant_cast<QIcon>(item->data(role));
    return icon.isNull() ? QString() : icon.pixmap(16, 16).toImage().pixelColor(8, 8).name();
}

// The list as its user sees it: the rows, the current one in brackets, and the buttons that
// can be used (d delete, u up, v down).
QString listState(ItemListEditor *editor)
{
    const QListWidget *list = editor->listWidget();
    QStringList rows;
    for (int i = 0; i < list->count(); ++i)
        rows << (i == list->currentRow() ? QStringLiteral("[%1]") : QStringLiteral("%1"))
                        .arg(list->item(i)->text());
    rows << QString();
    const char *const buttons[][2] = {{"deleteListItemButton", "d"},
                                      {"moveListItemUpButton", "u"},
                                      {"moveListItemDownButton", "v"}};
    for (const auto &button : buttons) {
        if (editor->findChild<QToolButton *>(QLatin1String(button[0]))->isEnabled())
            rows.last() += QLatin1String(button[1]);
    }
    return rows.join(QLatin1Char(' '));
}

} // namespace

class TestItemEditorParts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        CcTest::usePluginModulesOnly({});
        m_form = CcTest::createFormWindow(
                CcTest::formXml(QStringLiteral("<widget class=\"QLabel\" name=\"label\"/>"
                                               "<widget class=\"QComboBox\" name=\"combo\"/>")));
        QVERIFY(qobject_cast<FormWindowBase *>(m_form));
        m_label = CcTest::formChild(m_form, "label");
        m_object = CcTest::formChild(m_form, "combo");
        QVERIFY(m_label);
        QVERIFY(m_object);
        QVERIFY(!m_pictures.red.isEmpty());
        QVERIFY(!m_pictures.blue.isEmpty());
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
        auto *singleEditor = openEditor<TextEditor>(&pane.browser, single);
        QVERIFY(singleEditor);
        QVERIFY(!singleEditor->dialogButton()->isVisibleTo(singleEditor));

        // The translation data are sub-properties without a reset of their own.
        const PropertySheetStringValue old(QStringLiteral("old"), false, QStringLiteral("menu"),
                                           QStringLiteral("a verb"));
        multi->setValue(QVariant::fromValue(old));
        auto *commentEditor =
                openEditor<QLineEdit>(&pane.browser, subProperty(multi, QStringLiteral("comment")));
        QVERIFY(commentEditor);
        QVERIFY(!qobject_cast<ResetWidget *>(commentEditor->parentWidget()));

        // The "..." of multi-line text opens Designer's plain-text dialog; the data stay.
        auto *multiEditor = openEditor<TextEditor>(&pane.browser, multi);
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
        PropertySheetStringValue typed = old;
        typed.setValue(QStringLiteral("first\nsecond"));
        QCOMPARE(stringOf(multi->value()), typed);

        // Rich text opens Designer's rich-text dialog; cancelled, nothing changes.
        auto *richEditor = openEditor<TextEditor>(&pane.browser, rich);
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
        QVERIFY(!subProperty(icon, QStringLiteral("Selected On"))->isModified());
        QCOMPARE(icon->valueText(), QStringLiteral("red.png"));
        QCOMPARE(icon->valueIcon().cacheKey(),
                 formBase->iconCache()->icon(iconOf(icon)).cacheKey());

        // A theme, chosen through the pixmap editor's menu and the theme dialog.
        auto *editor = openEditor<PixmapEditor>(&pane.browser, icon);
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
        QVERIFY(openEditor<IconThemeEditor>(&pane.browser, theme));
        QVERIFY(pane.manager.resetIconSubProperty(theme));
        QCOMPARE(iconOf(icon).theme(), QString());

        // Designer's resource chooser opens from the same editor; cancelled, nothing changes.
        editor = openEditor<PixmapEditor>(&pane.browser, icon);
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
        auto *spin = openEditor<QSpinBox>(&pane.browser, size);
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
    }

    void cleanup() { m_editor.reset(); }
    void formTextsAndPaneToggle()
    {
        CcTest::RecordingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        ItemListEditor editor(m_form, nullptr);
        QCOMPARE(editor.objectName(), QStringLiteral("qdesigner_internal__ItemListEditor"));
        QCOMPARE(editor.size(), QSize(550, 360));

        // The pane starts hidden; the button toggles it and tells what a click will do.
        editor.show();
        auto *toggle = editor.findChild<QPushButton *>(QStringLiteral("showPropertiesButton"));
        QVERIFY(!editor.propertyBrowser()->isVisible());
        for (const bool visible : {true, false}) {
            QTest::mouseClick(toggle, Qt::LeftButton);
            QCOMPARE(editor.propertyBrowser()->isVisible(), visible);
            QCOMPARE(toggle->text(),
                     visible ? QStringLiteral("Properties &>>") : QStringLiteral("Properties &<<"));
        }
        editor.setPropertyBrowserVisible(true);
        QCOMPARE(toggle->text(), QStringLiteral("Properties &>>"));
        QCoreApplication::removeTranslator(&translator);

        // The list and each button show a text, looked up in the editor's context (the pane's
        // own, sized to a text of its context); the tool buttons have icons.
        const QString context = QStringLiteral("qdesigner_internal::ItemListEditor");
        QVector<CcTest::Message> shown = {{"ItemPropertyBrowser", "XX Icon Selected off"}};
        for (QWidget *widget : editor.findChildren<QWidget *>()) {
            auto *button = qobject_cast<QAbstractButton *>(widget);
            if (!button && widget != editor.listWidget())
                continue;
            QVERIFY(!qobject_cast<QToolButton *>(button) || !button->icon().isNull());
            const QString texts[] = {widget->toolTip(), button ? button->text() : QString()};
            QVERIFY2(!(texts[0] + texts[1]).isEmpty(), qPrintable(widget->objectName()));
            for (const QString &text : texts) {
                if (!text.isEmpty())
                    shown.append(CcTest::Message(context, text));
            }
        }
        for (const CcTest::Message &text : qAsConst(shown))
            QVERIFY2(translator.asked.contains(text), qPrintable(text.source));
    }

    void propertyTableBecomesProperties()
    {
        // The flags and the check state name their values.
        makeEditor({"One"});
        QCOMPARE(itemProperty("flags")->attributeValue(QStringLiteral("flagNames")),
                 QVariant(QStringList({"Selectable", "Editable", "DragEnabled", "DropEnabled",
                                       "UserCheckable", "Enabled", "Tristate"})));
        QCOMPARE(itemProperty("checkState")->attributeValue(QStringLiteral("enumNames")),
                 QVariant(QStringList({"Unchecked", "PartiallyChecked", "Checked"})));
    }

    void settingAndResettingValues()
    {
        ItemListEditor *editor = makeEditor({"One", "Two"});
        editor->listWidget()->setCurrentRow(1);
        QListWidgetItem *item = editor->listWidget()->item(1);
        ItemPropertyBrowser *browser = editor->propertyBrowser();
        const auto resetInThePane = [browser](QtProperty *property) {
            auto *reset = openEditor<ResetWidget>(browser, property);
            QVERIFY(reset);
            QVERIFY(reset->resetButton()->isEnabled());
            reset->resetButton()->click();
        };

        // A value goes to its role and to the plain role that shows it, reported in that order.
        // The property's reset button in the pane, or its default, removes the role again and
        // empties the plain one; the property is no longer modified. The pane's editor of a
        // string takes several lines where its validation mode allows them.
        // clang-format off
        const struct
        {
            const char *property;
            int mode, role, plainRole;
            QVariant value, defaultValue;
        } cases[] = {
                {"text", ValidationMultiLine, Qt::DisplayPropertyRole, Qt::EditRole,
                 CcTest::stringValue("two\nlines"), {}},
                {"toolTip", ValidationRichText, Qt::ToolTipPropertyRole, Qt::ToolTipRole,
                 CcTest::stringValue("<b>tip</b>"), {}},
                {"statusTip", ValidationSingleLine, Qt::StatusTipPropertyRole, Qt::StatusTipRole,
                 CcTest::stringValue("status"), {}},
                {"whatsThis", ValidationRichText, Qt::WhatsThisPropertyRole, Qt::WhatsThisRole,
                 CcTest::stringValue("<i>w</i>"), {}},
                {"icon", -1, Qt::DecorationPropertyRole, Qt::DecorationRole,
                 CcTest::iconValue(m_pictures.red), QVariant::fromValue(PropertySheetIconValue())},
                {"flags", -1, ItemFlagsRole, -1, freshItemFlags() & ~int(Qt::ItemIsEnabled),
                 freshItemFlags()},
                {"checkState", -1, Qt::CheckStateRole, -1, int(Qt::Checked), {}},
        };
        // clang-format on
        for (const auto &c : cases) {
            QtVariantProperty *property = itemProperty(c.property);
            QCOMPARE(property->attributeValue("validationMode"),
                     c.mode < 0 ? QVariant() : QVariant(c.mode));
            const int lastRole = c.plainRole < 0 ? c.role : c.plainRole;
            const QString plain = c.plainRole == Qt::DecorationRole ? QColor(Qt::red).name()
                                                                    : stringOf(c.value).value();
            for (const bool byReset : {false, true}) {
                if (!byReset && !c.defaultValue.isValid())
                    continue;
                QSignalSpy changed(editor, &ItemListEditor::itemChanged);
                property->setValue(c.value);
                QVERIFY2(item->data(c.role).isValid(), c.property);
                QVERIFY2(property->isModified(), c.property);
                QCOMPARE(shownAs(item, c.plainRole), plain);
                QCOMPARE(changed.value(0).mid(0, 2), QVariantList({1, c.role}));
                QCOMPARE(changed.value(changed.size() - 1).mid(0, 2), QVariantList({1, lastRole}));
                changed.clear();
                if (byReset)
                    resetInThePane(property);
                else
                    property->setValue(c.defaultValue);
                QVERIFY2(!item->data(c.role).isValid(), c.property);
                QVERIFY2(!property->isModified(), c.property);
                QCOMPARE(shownAs(item, c.plainRole), QString());
                QCOMPARE(changed.value(0), QVariantList({1, c.role, QVariant()}));
                QCOMPARE(changed.value(changed.size() - 1).mid(0, 2), QVariantList({1, lastRole}));
            }
            // Nothing left to reset.
            QVERIFY(!openEditor<ResetWidget>(browser, property)->resetButton()->isEnabled());
        }
        QCOMPARE(itemProperty("flags")->value().toInt(), freshItemFlags());

        // A font part is resolved against the list's font; resetting the only part that was set
        // leaves nothing resolved: the role goes.
        QtVariantProperty *bold = subProperty(itemProperty("font"), QStringLiteral("Bold"));
        bold->setValue(true);
        const QFont itemFont = qvariant_cast<QFont>(item->data(Qt::FontRole));
        QVERIFY(itemFont.bold());
        QCOMPARE(CcQt::fontResolveMask(itemFont), uint(QFont::WeightResolved));
        QCOMPARE(itemFont.family(), editor->listWidget()->font().family());
        resetInThePane(bold);
        QVERIFY(!item->data(Qt::FontRole).isValid());
        QVERIFY(!itemProperty("font")->isModified());

        // An icon part's reset clears that part only, and the icon is still set.
        PropertySheetIconValue twoStates {PropertySheetPixmapValue(m_pictures.red)};
        twoStates.setPixmap(QIcon::Normal, QIcon::On, PropertySheetPixmapValue(m_pictures.blue));
        itemProperty("icon")->setValue(QVariant::fromValue(twoStates));
        resetInThePane(subProperty(itemProperty("icon"), QStringLiteral("Normal On")));
        twoStates.setPixmap(QIcon::Normal, QIcon::On, PropertySheetPixmapValue());
        QCOMPARE(qvariant_cast<PropertySheetIconValue>(item->data(Qt::DecorationPropertyRole)),
                 twoStates);
        QVERIFY(itemProperty("icon")->isModified());

        // Only the current row changed: the pane shows the other one's own values, the
        // defaults where it has none.
        itemProperty("checkState")->setValue(int(Qt::Checked));
        editor->listWidget()->setCurrentRow(0);
        for (const QtVariantProperty *untouched : editor->properties())
            QCOMPARE(untouched->isModified(), untouched->propertyName() == QLatin1String("text"));
        QCOMPARE(stringOf(itemProperty("text")->value()).value(), QStringLiteral("One"));
        QCOMPARE(itemProperty("checkState")->value().toInt(), 0);
        QCOMPARE(itemProperty("flags")->value().toInt(), freshItemFlags());
        editor->listWidget()->setCurrentRow(1);
        QVERIFY(itemProperty("icon")->isModified());
        QCOMPARE(itemProperty("checkState")->value().toInt(), 2);
    }

    // What the item editing suite's scripts do not see: which buttons can be used, where New
    // goes with no row current, selections reported or not, and the pane with no row left.
    // (Renaming in place and deleting the last row are checked there, in the edited forms.)
    void listOperationsAndSelectionRules()
    {
        ItemListEditor *editor = makeEditor({"A", "B", "C"});
        QListWidget *list = editor->listWidget();
        const auto click = [editor](const char *button) {
            QTest::mouseClick(editor->findChild<QToolButton *>(QLatin1String(button)),
                              Qt::LeftButton);
        };
        // New opens the new item for renaming; Escape keeps its text.
        const auto clickNew = [&] {
            click("newListItemButton");
            QLineEdit *inPlace = list->findChild<QLineEdit *>();
            QVERIFY(inPlace);
            QVERIFY(inPlace->isVisible());
            QCOMPARE(inPlace->text(), QStringLiteral("New Item"));
            QTest::keyClick(inPlace, Qt::Key_Escape);
            CcTest::settle();
        };

        // setCurrentIndex selects silently; a user's selection is reported.
        QSignalSpy index(editor, &ItemListEditor::indexChanged);
        QCOMPARE(listState(editor), QStringLiteral("[A] B C dv"));
        editor->setCurrentIndex(2);
        QCOMPARE(listState(editor), QStringLiteral("A B [C] du"));
        list->setCurrentRow(1);
        QCOMPARE(index.size(), 1);
        QCOMPARE(index.last().at(0).toInt(), 1);

        // New with no row current goes first; a click on a disabled button does nothing.
        list->setCurrentRow(-1);
        QCOMPARE(listState(editor), QStringLiteral("A B C "));
        clickNew();
        QCOMPARE(listState(editor), QStringLiteral("[New Item] A B C dv"));
        click("moveListItemUpButton");
        list->setCurrentRow(3);
        click("moveListItemDownButton");
        QCOMPARE(listState(editor), QStringLiteral("New Item A B [C] du"));

        // Deleting everything leaves no button to use and an empty pane; New fills it again.
        while (list->count())
            click("deleteListItemButton");
        QCOMPARE(listState(editor), QString());
        QVERIFY(editor->propertyBrowser()->topLevelItems().isEmpty());
        clickNew();
        QCOMPARE(editor->propertyBrowser()->topLevelItems().size(), 8);
    }

    void reLayoutOnlyWhenTheLineCountChanges()
    {
        // Enough rows to scroll by pixels: the scroll range follows the rows' heights as soon as
        // the list is laid out, and is not brought up to date by reading it.
        QStringList rows;
        for (int i = 0; i < 30; ++i)
            rows.append(QStringLiteral("Row %1").arg(i));
        QListWidget *list = makeEditor(rows)->listWidget();
        list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        QApplication::processEvents();
        QScrollBar *bar = list->verticalScrollBar();
        const auto rangeAfter = [&](int role, const QVariant &value) {
            m_editor->setItemData(role, value);
            return bar->maximum();
        };
        const int oneLine = bar->maximum();
        QCOMPARE(rangeAfter(Qt::EditRole, QStringLiteral("A longer single line")), oneLine);
        const int twoLines = rangeAfter(Qt::EditRole, QStringLiteral("Two\nlines"));
        QVERIFY(twoLines > oneLine);
        QCOMPARE(rangeAfter(Qt::EditRole, QStringLiteral("Other\ntext")), twoLines);
        QCOMPARE(rangeAfter(Qt::EditRole, QStringLiteral("One")), oneLine);
        // A font always lays out.
        QFont big = list->font();
        big.setPointSize(list->font().pointSize() * 3);
        QVERIFY(rangeAfter(Qt::FontRole, big) > oneLine);
    }

    void rendersIconsFromTheCache()
    {
        // An item whose icon is known but not drawn yet gets it when the form's cache reloads,
        // and the pane shows its icon properties anew.
        ItemListEditor *editor = makeEditor({"Apple", "Banana"});
        QListWidgetItem *banana = editor->listWidget()->item(1);
        banana->setData(Qt::DecorationPropertyRole, CcTest::iconValue(m_pictures.blue));
        bool iconRepainted = false;
        connect(editor->propertyManager(), &QtAbstractPropertyManager::propertyChanged, editor,
                [&](QtProperty *changed) { iconRepainted |= changed == itemProperty("icon"); });
        emit editor->iconCache()->reloaded();
        QVERIFY(iconRepainted);
        QCOMPARE(shownAs(banana, Qt::DecorationRole), QColor(Qt::blue).name());
    }

private:
    // An editor on the form's combo box holding the given items, set up with every kind of
    // property and its pane shown; it lives until the end of the test.
    ItemListEditor *makeEditor(const QStringList &texts)
    {
        m_editor.reset(new ItemListEditor(m_form, nullptr));
        m_editor->setNewItemText(QStringLiteral("New Item"));
        for (const QString &text : texts) {
            auto *item = new QListWidgetItem(text);
            item->setData(Qt::DisplayPropertyRole, CcTest::stringValue(text));
            item->setFlags(item->flags() | Qt::ItemIsEditable);
            m_editor->listWidget()->addItem(item);
        }
        m_editor->setupEditor(m_object, CcTest::allItemProperties());
        m_editor->setPropertyBrowserVisible(true);
        m_editor->show();
        return m_editor.data();
    }

    QtVariantProperty *itemProperty(const char *name) const
    {
        const QList<QtVariantProperty *> properties = m_editor->properties();
        for (QtVariantProperty *property : properties) {
            if (property->propertyName() == QLatin1String(name))
                return property;
        }
        return nullptr;
    }

    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_label = nullptr;
    QWidget *m_object = nullptr;
    QScopedPointer<ItemListEditor> m_editor;
    CcTest::TestPictures m_pictures;
};

QTEST_MAIN(TestItemEditorParts)
#include "tst_itemeditorparts.moc"
