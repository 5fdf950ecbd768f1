// The tree browser as a user meets it: rows that follow the properties, values edited in
// place with the mouse and the keyboard, columns, and browsers, managers and factories
// going away in any order.

#include "propertymetatypes.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"
#include "temperatureeditorfactory.h"
#include "temperaturepropertymanager.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <memory>

// A browser with its manager and factory, shown and active, as in an item editor.
struct Pane
{
    Pane()
    {
        browser->setFactoryForManager<QtVariantPropertyManager>(manager.get(), factory.get());
        browser->resize(420, 400);
    }
    void show()
    {
        browser->show();
        QApplication::setActiveWindow(browser.get());
        QVERIFY(QTest::qWaitForWindowActive(browser.get()));
    }
    QtVariantProperty *add(int type, const QString &name, const QVariant &value = QVariant())
    {
        QtVariantProperty *property = manager->addProperty(type, name);
        if (value.isValid())
            property->setValue(value);
        browser->addProperty(property);
        return property;
    }

    std::unique_ptr<QtVariantPropertyManager> manager {new QtVariantPropertyManager};
    std::unique_ptr<QtVariantEditorFactory> factory {new QtVariantEditorFactory};
    std::unique_ptr<QtTreePropertyBrowser> browser {new QtTreePropertyBrowser};
};

static QTreeWidget *treeOf(QtAbstractPropertyBrowser *browser)
{
    return browser->findChild<QTreeWidget *>();
}

// The tree row showing a browser item, found by the item's position only.
static QTreeWidgetItem *rowOf(QtAbstractPropertyBrowser *browser, QtBrowserItem *item)
{
    QList<int> path;
    for (QtBrowserItem *it = item; it; it = it->parent()) {
        const QList<QtBrowserItem *> siblings =
                it->parent() ? it->parent()->children() : browser->topLevelItems();
        path.prepend(siblings.indexOf(it));
    }
    QTreeWidgetItem *row = treeOf(browser)->topLevelItem(path.takeFirst());
    for (int index : qAsConst(path))
        row = row ? row->child(index) : nullptr;
    return row;
}

static QStringList rowNames(QTreeWidget *tree)
{
    QStringList names;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        names.append(tree->topLevelItem(i)->text(0));
    return names;
}

static void clickCell(QtAbstractPropertyBrowser *browser, QTreeWidgetItem *row, int column)
{
    QTreeWidget *tree = treeOf(browser);
    tree->scrollToItem(row);
    const QRect rect = tree->visualItemRect(row);
    const int x = tree->header()->sectionViewportPosition(column) + 12;
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, QPoint(x, rect.center().y()));
}

// Clicks the value cell of the item and returns the editor that opened there.
static QWidget *openEditor(QtAbstractPropertyBrowser *browser, QtBrowserItem *item, int column = 1)
{
    clickCell(browser, rowOf(browser, item), column);
    QTreeWidget *tree = treeOf(browser);
    return tree->indexWidget(tree->currentIndex());
}

class TestTreePropertyBrowser : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { registerPropertyMetaTypes(); }
    void topLevelProperties();
    void subPropertiesFollow();
    void rowDisplay();
    void editText();
    void editNumbersChecksAndChoices();
    void editFontThroughSubProperty();
    void editColorInDialog();
    void editFontInDialogAndKeySequence();
    void customTypeEditor();
    void columns();
    void expandAndCurrent();
    void sharedProperty();
    void lifetimes();
    void renderToImage();
};

void TestTreePropertyBrowser::topLevelProperties()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *a = pane.manager->addProperty(QMetaType::Int, QStringLiteral("a"));
    QtVariantProperty *b = pane.manager->addProperty(QMetaType::Int, QStringLiteral("b"));
    QtVariantProperty *c = pane.manager->addProperty(QMetaType::Int, QStringLiteral("c"));
    QTreeWidget *tree = treeOf(browser);
    QVERIFY(tree);
    QCOMPARE(tree->columnCount(), 2);
    QCOMPARE(tree->headerItem()->text(0), QStringLiteral("Property"));
    QCOMPARE(tree->headerItem()->text(1), QStringLiteral("Value"));

    QtBrowserItem *itemB = browser->addProperty(b);
    QVERIFY(itemB);
    QCOMPARE(itemB->property(), b);
    QCOMPARE(itemB->browser(), browser);
    QVERIFY(!itemB->parent());
    QVERIFY(!browser->addProperty(b)); // once only
    QtBrowserItem *itemA = browser->insertProperty(a, nullptr);
    QtBrowserItem *itemC = browser->insertProperty(c, b);
    // Only after a top-level property.
    QtVariantProperty *loose = pane.manager->addProperty(QMetaType::Int, QStringLiteral("loose"));
    QVERIFY(!browser->insertProperty(loose, pane.manager->addProperty(QMetaType::Int)));

    QCOMPARE(browser->properties(), QList<QtProperty *>({a, b, c}));
    QCOMPARE(browser->topLevelItems(), QList<QtBrowserItem *>({itemA, itemB, itemC}));
    QCOMPARE(browser->topLevelItem(c), itemC);
    QCOMPARE(browser->items(a), QList<QtBrowserItem *>({itemA}));
    QCOMPARE(rowNames(tree), QStringList({"a", "b", "c"}));

    browser->removeProperty(b);
    QCOMPARE(browser->properties(), QList<QtProperty *>({a, c}));
    QVERIFY(!browser->topLevelItem(b));
    QVERIFY(browser->items(b).isEmpty());
    QCOMPARE(rowNames(tree), QStringList({"a", "c"}));
    QVERIFY(pane.manager->properties().contains(b)); // removing does not delete

    browser->insertProperty(b, a);
    QCOMPARE(rowNames(tree), QStringList({"a", "b", "c"}));

    // A deleted property leaves the browser.
    delete a;
    QCOMPARE(browser->properties(), QList<QtProperty *>({b, c}));
    QCOMPARE(rowNames(tree), QStringList({"b", "c"}));

    browser->clear();
    QVERIFY(browser->properties().isEmpty());
    QVERIFY(browser->topLevelItems().isEmpty());
    QCOMPARE(tree->topLevelItemCount(), 0);
    QCOMPARE(pane.manager->properties().size(), 4);
}

void TestTreePropertyBrowser::subPropertiesFollow()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *group =
            pane.add(QtVariantPropertyManager::groupTypeId(), QStringLiteral("group"));
    QtVariantProperty *x = pane.manager->addProperty(QMetaType::Int, QStringLiteral("x"));
    QtVariantProperty *y = pane.manager->addProperty(QMetaType::Int, QStringLiteral("y"));
    QtVariantProperty *z = pane.manager->addProperty(QMetaType::Int, QStringLiteral("z"));
    QTreeWidgetItem *groupRow = treeOf(browser)->topLevelItem(0);

    group->addSubProperty(x);
    group->addSubProperty(z);
    group->insertSubProperty(y, x);
    QtBrowserItem *groupItem = browser->topLevelItem(group);
    QCOMPARE(groupItem->children().size(), 3);
    QCOMPARE(groupItem->children().at(1)->property(), y);
    QCOMPARE(groupItem->children().at(1)->parent(), groupItem);
    QCOMPARE(groupRow->childCount(), 3);
    QCOMPARE(groupRow->child(1)->text(0), QStringLiteral("y"));

    // The same property under two parents appears twice, with the same value.
    QtVariantProperty *other =
            pane.add(QtVariantPropertyManager::groupTypeId(), QStringLiteral("other"));
    other->addSubProperty(y);
    QCOMPARE(browser->items(y).size(), 2);
    y->setValue(12);
    for (QtBrowserItem *item : browser->items(y))
        QCOMPARE(rowOf(browser, item)->text(1), QStringLiteral("12"));

    group->removeSubProperty(y);
    QCOMPARE(groupRow->childCount(), 2);
    QCOMPARE(browser->items(y).size(), 1);
    delete y;
    QCOMPARE(treeOf(browser)->topLevelItem(1)->childCount(), 0);
    QCOMPARE(browser->topLevelItem(other)->children().size(), 0);

    // Flags grow and lose their bit rows in the tree as their names change.
    QtVariantProperty *flags =
            pane.add(QtVariantPropertyManager::flagTypeId(), QStringLiteral("flags"));
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B", "C"}));
    QTreeWidgetItem *flagsRow = rowOf(browser, browser->topLevelItem(flags));
    QCOMPARE(flagsRow->childCount(), 3);
    QCOMPARE(flagsRow->child(2)->text(0), QStringLiteral("C"));
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A"}));
    QCOMPARE(flagsRow->childCount(), 1);
}

void TestTreePropertyBrowser::rowDisplay()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *text =
            pane.add(QMetaType::QString, QStringLiteral("text"), QStringLiteral("Hi"));
    QtVariantProperty *check = pane.add(QMetaType::Bool, QStringLiteral("check"), true);
    QtVariantProperty *font = pane.add(QMetaType::QFont, QStringLiteral("font"));
    QtVariantProperty *group =
            pane.add(QtVariantPropertyManager::groupTypeId(), QStringLiteral("A long group name"));
    QTreeWidgetItem *textRow = rowOf(browser, browser->topLevelItem(text));
    QTreeWidgetItem *fontRow = rowOf(browser, browser->topLevelItem(font));
    QTreeWidgetItem *groupRow = rowOf(browser, browser->topLevelItem(group));

    QCOMPARE(textRow->text(0), QStringLiteral("text"));
    QCOMPARE(textRow->text(1), QStringLiteral("Hi"));
    QCOMPARE(rowOf(browser, browser->topLevelItem(check))->text(1), QStringLiteral("True"));
    QVERIFY(!rowOf(browser, browser->topLevelItem(check))->icon(1).isNull());
    text->setValue(QStringLiteral("Changed"));
    QCOMPARE(textRow->text(1), QStringLiteral("Changed"));
    text->setPropertyName(QStringLiteral("caption"));
    QCOMPARE(textRow->text(0), QStringLiteral("caption"));
    text->setToolTip(QStringLiteral("The caption"));
    QCOMPARE(textRow->toolTip(0), QStringLiteral("The caption"));

    // Modified: a bold name, that only changes the weight of the browser's font.
    QVERIFY(!textRow->font(0).bold());
    text->setModified(true);
    QVERIFY(textRow->font(0).bold());
    QCOMPARE(textRow->font(0).resolve(), uint(QFont::WeightResolved));
    text->setModified(false);
    QVERIFY(!textRow->font(0).bold());

    // Disabled: greyed and not editable, and so is everything below it.
    font->setEnabled(false);
    QVERIFY(!(fontRow->flags() & Qt::ItemIsEnabled));
    QVERIFY(!(fontRow->child(2)->flags() & Qt::ItemIsEnabled));
    pane.show();
    QVERIFY(!openEditor(browser, browser->topLevelItem(font)->children().at(2)));
    font->setEnabled(true);
    QVERIFY(fontRow->child(2)->flags() & Qt::ItemIsEnabled);
    QVERIFY(fontRow->flags() & Qt::ItemIsEditable);

    // A group has no value: one cell across the row, darker when marked.
    QVERIFY(groupRow->isFirstColumnSpanned());
    QVERIFY(!(groupRow->flags() & Qt::ItemIsEditable));
    QVERIFY(!groupRow->data(0, Qt::BackgroundRole).isValid());
    browser->setPropertiesWithoutValueMarked(true);
    QVERIFY(browser->propertiesWithoutValueMarked());
    QCOMPARE(groupRow->background(0).color(), browser->palette().color(QPalette::Dark));
    QVERIFY(!textRow->data(0, Qt::BackgroundRole).isValid());

    // Background colours are inherited by the items below.
    QtBrowserItem *fontItem = browser->topLevelItem(font);
    browser->setBackgroundColor(fontItem, Qt::yellow);
    QCOMPARE(browser->backgroundColor(fontItem), QColor(Qt::yellow));
    QCOMPARE(browser->calculatedBackgroundColor(fontItem->children().at(0)), QColor(Qt::yellow));
    QVERIFY(!browser->backgroundColor(fontItem->children().at(0)).isValid());
    QCOMPARE(fontRow->child(0)->background(1).color(), QColor(Qt::yellow));

    browser->setItemVisible(fontItem, false);
    QVERIFY(!browser->isItemVisible(fontItem));
    QVERIFY(fontRow->isHidden());
    browser->setItemVisible(fontItem, true);
    QVERIFY(browser->isItemVisible(fontItem));
}

void TestTreePropertyBrowser::editText()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *text =
            pane.add(QMetaType::QString, QStringLiteral("text"), QStringLiteral("old"));
    pane.add(QMetaType::Int, QStringLiteral("number"), 1);
    pane.show();
    QSignalSpy values(pane.manager.get(), &QtVariantPropertyManager::valueChanged);

    auto *editor = qobject_cast<QLineEdit *>(openEditor(browser, browser->topLevelItem(text)));
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("old"));
    QCOMPARE(browser->currentItem(), browser->topLevelItem(text));
    QTRY_VERIFY(editor->hasFocus());
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("Hello"));
    QVERIFY(values.isEmpty()); // nothing is written while typing
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(text->value().toString(), QStringLiteral("Hello"));
    QCOMPARE(values.count(), 1);
    QCOMPARE(rowOf(browser, browser->topLevelItem(text))->text(1), QStringLiteral("Hello"));

    // A change from elsewhere shows in an open editor.
    editor = qobject_cast<QLineEdit *>(openEditor(browser, browser->topLevelItem(text)));
    QVERIFY(editor);
    text->setValue(QStringLiteral("From code"));
    QCOMPARE(editor->text(), QStringLiteral("From code"));

    // Escape abandons the edit.
    QTRY_VERIFY(editor->hasFocus());
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("Abandoned"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QTest::qWait(1);
    QCOMPARE(text->value().toString(), QStringLiteral("From code"));

    // Leaving the field for another row writes what was typed.
    editor = qobject_cast<QLineEdit *>(openEditor(browser, browser->topLevelItem(text)));
    QVERIFY(editor);
    QTRY_VERIFY(editor->hasFocus());
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("Left behind"));
    QPointer<QLineEdit> guard = editor;
    clickCell(browser, treeOf(browser)->topLevelItem(1), 1);
    QCOMPARE(text->value().toString(), QStringLiteral("Left behind"));
    QTRY_VERIFY(!guard); // the editor of the row left behind is gone

    // The keyboard opens the editor of the current row too: Enter, or F2 as in any view.
    QTreeWidget *tree = treeOf(browser);
    tree->setFocus();
    browser->setCurrentItem(browser->topLevelItem(text));
    QTest::keyClick(tree, Qt::Key_Return);
    QVERIFY(qobject_cast<QLineEdit *>(tree->indexWidget(tree->currentIndex())));
    QTest::keyClick(tree->indexWidget(tree->currentIndex()), Qt::Key_Escape);
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(browser->currentItem(), browser->topLevelItems().at(1));
    QVERIFY(!tree->indexWidget(tree->currentIndex())); // moving does not open editors
    QTest::keyClick(tree, Qt::Key_F2);
    QVERIFY(qobject_cast<QSpinBox *>(tree->indexWidget(tree->currentIndex())));
}

void TestTreePropertyBrowser::editNumbersChecksAndChoices()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *number = pane.add(QMetaType::Int, QStringLiteral("number"), 5);
    number->setAttribute(QStringLiteral("maximum"), 100);
    number->setAttribute(QStringLiteral("singleStep"), 5);
    QtVariantProperty *ratio = pane.add(QMetaType::Double, QStringLiteral("ratio"), 0.5);
    QtVariantProperty *check = pane.add(QMetaType::Bool, QStringLiteral("check"), false);
    QtVariantProperty *choice =
            pane.add(QtVariantPropertyManager::enumTypeId(), QStringLiteral("choice"));
    choice->setAttribute(QStringLiteral("enumNames"), QStringList({"Red", "Green", "Blue"}));
    pane.add(QMetaType::QSize, QStringLiteral("size"));
    pane.show();

    auto *spin = qobject_cast<QSpinBox *>(openEditor(browser, browser->topLevelItem(number)));
    QVERIFY(spin);
    QCOMPARE(spin->value(), 5);
    QCOMPARE(spin->maximum(), 100);
    QCOMPARE(spin->singleStep(), 5);
    QTRY_VERIFY(spin->hasFocus());
    QTest::keyClick(spin, Qt::Key_Up); // one step
    QCOMPARE(number->value().toInt(), 10);
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("77"));
    QCOMPARE(number->value().toInt(), 10); // not while typing
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(number->value().toInt(), 77);
    number->setAttribute(QStringLiteral("maximum"), 50); // the open editor follows
    QCOMPARE(spin->maximum(), 50);
    QCOMPARE(spin->value(), 50);

    auto *doubleSpin =
            qobject_cast<QDoubleSpinBox *>(openEditor(browser, browser->topLevelItem(ratio)));
    QVERIFY(doubleSpin);
    QTRY_VERIFY(doubleSpin->hasFocus());
    doubleSpin->selectAll();
    QTest::keyClicks(doubleSpin, QStringLiteral("2.25"));
    QTest::keyClick(doubleSpin, Qt::Key_Return);
    QCOMPARE(ratio->value().toDouble(), 2.25);

    auto *box = qobject_cast<QCheckBox *>(openEditor(browser, browser->topLevelItem(check)));
    QVERIFY(box);
    QVERIFY(!box->isChecked());
    QTest::mouseClick(box, Qt::LeftButton, {}, box->rect().center());
    QCOMPARE(check->value().toBool(), true);
    QCOMPARE(rowOf(browser, browser->topLevelItem(check))->text(1), QStringLiteral("True"));

    auto *combo = qobject_cast<QComboBox *>(openEditor(browser, browser->topLevelItem(choice)));
    QVERIFY(combo);
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(2), QStringLiteral("Blue"));
    QTRY_VERIFY(combo->hasFocus());
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(choice->value().toInt(), 1);
    QCOMPARE(rowOf(browser, browser->topLevelItem(choice))->text(1), QStringLiteral("Green"));

    // A compound value is edited through its sub-properties only.
    QtBrowserItem *sizeItem = browser->topLevelItems().constLast();
    QVERIFY(!openEditor(browser, sizeItem));
    QVERIFY(qobject_cast<QSpinBox *>(openEditor(browser, sizeItem->children().at(0))));
}

void TestTreePropertyBrowser::editFontThroughSubProperty()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *font = pane.add(QMetaType::QFont, QStringLiteral("font"));
    pane.show();
    QtBrowserItem *fontItem = browser->topLevelItem(font);
    QTreeWidgetItem *fontRow = rowOf(browser, fontItem);
    QCOMPARE(fontRow->childCount(), 7);
    QCOMPARE(fontRow->child(2)->text(0), QStringLiteral("Bold"));

    auto *bold = qobject_cast<QCheckBox *>(openEditor(browser, fontItem->children().at(2)));
    QVERIFY(bold);
    QTest::mouseClick(bold, Qt::LeftButton, {}, bold->rect().center());
    QVERIFY(font->value().value<QFont>().bold());
    QCOMPARE(fontRow->child(2)->text(1), QStringLiteral("True"));

    auto *size = qobject_cast<QSpinBox *>(openEditor(browser, fontItem->children().at(1)));
    QVERIFY(size);
    QTRY_VERIFY(size->hasFocus());
    size->selectAll();
    QTest::keyClicks(size, QStringLiteral("21"));
    QTest::keyClick(size, Qt::Key_Return);
    QCOMPARE(font->value().value<QFont>().pointSize(), 21);
    QVERIFY(fontRow->text(1).endsWith(QStringLiteral(", 21]")));

    // And the other way: a new font shows in the rows below.
    QFont italic = font->value().value<QFont>();
    italic.setItalic(true);
    font->setValue(italic);
    QCOMPARE(fontRow->child(3)->text(1), QStringLiteral("True"));
}

void TestTreePropertyBrowser::editColorInDialog()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *color =
            pane.add(QMetaType::QColor, QStringLiteral("color"), QColor(Qt::red));
    pane.show();

    QWidget *editor = openEditor(browser, browser->topLevelItem(color));
    QVERIFY(editor);
    auto *button = editor->findChild<QToolButton *>();
    QVERIFY(button);
    bool dialogSeen = false;
    QTimer::singleShot(0, this, [&dialogSeen] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        dialogSeen = true;
        QCOMPARE(dialog->currentColor(), QColor(Qt::red));
        dialog->setCurrentColor(QColor(0, 128, 255));
        dialog->accept();
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(dialogSeen);
    QCOMPARE(color->value().value<QColor>(), QColor(0, 128, 255));
    QCOMPARE(rowOf(browser, browser->topLevelItem(color))->text(1),
             QStringLiteral("[0, 128, 255] (255)"));

    // A cancelled dialog changes nothing.
    editor = openEditor(browser, browser->topLevelItem(color));
    QVERIFY(editor);
    QTimer::singleShot(0, this, [] {
        if (auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget())) {
            dialog->setCurrentColor(Qt::green);
            dialog->reject();
        }
    });
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QCOMPARE(color->value().value<QColor>(), QColor(0, 128, 255));
}

void TestTreePropertyBrowser::editFontInDialogAndKeySequence()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *font = pane.add(QMetaType::QFont, QStringLiteral("font"));
    QtVariantProperty *shortcut = pane.add(QMetaType::QKeySequence, QStringLiteral("shortcut"));
    pane.show();

    QWidget *editor = openEditor(browser, browser->topLevelItem(font));
    QVERIFY(editor);
    bool dialogSeen = false;
    QTimer::singleShot(0, this, [&dialogSeen] {
        auto *dialog = qobject_cast<QFontDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        dialogSeen = true;
        QFont chosen = dialog->currentFont();
        chosen.setPointSize(31);
        chosen.setUnderline(true);
        dialog->setCurrentFont(chosen);
        dialog->accept();
    });
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(dialogSeen);
    QCOMPARE(font->value().value<QFont>().pointSize(), 31);
    QVERIFY(font->value().value<QFont>().underline());
    QtBrowserItem *fontItem = browser->topLevelItem(font);
    QCOMPARE(rowOf(browser, fontItem->children().at(1))->text(1), QStringLiteral("31"));
    QCOMPARE(rowOf(browser, fontItem->children().at(4))->text(1), QStringLiteral("True"));

    // The window system hands the activation back once the dialog is gone.
    QApplication::setActiveWindow(browser);
    QVERIFY(QTest::qWaitForWindowActive(browser));
    auto *keys =
            qobject_cast<QKeySequenceEdit *>(openEditor(browser, browser->topLevelItem(shortcut)));
    QVERIFY(keys);
    QTRY_VERIFY(keys->hasFocus() || keys->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_K, Qt::ControlModifier);
    // The key sequence is taken once the user pauses.
    QTRY_COMPARE(shortcut->value().value<QKeySequence>(), QKeySequence(Qt::CTRL | Qt::Key_K));
    QCOMPARE(rowOf(browser, browser->topLevelItem(shortcut))->text(1),
             QKeySequence(Qt::CTRL | Qt::Key_K).toString(QKeySequence::NativeText));
}

void TestTreePropertyBrowser::customTypeEditor()
{
    TemperaturePropertyManager manager;
    TemperatureEditorFactory factory;
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager<QtVariantPropertyManager>(&manager, &factory);
    browser.resize(400, 300);
    QtVariantProperty *temperature = manager.addProperty(
            TemperaturePropertyManager::temperatureTypeId(), QStringLiteral("temperature"));
    QtVariantProperty *count = manager.addProperty(QMetaType::Int, QStringLiteral("count"));
    browser.addProperty(temperature);
    browser.addProperty(count);
    browser.show();
    QApplication::setActiveWindow(&browser);
    QVERIFY(QTest::qWaitForWindowActive(&browser));
    QCOMPARE(treeOf(&browser)->topLevelItem(0)->text(1), QStringLiteral("0 C"));

    auto *editor =
            qobject_cast<QLineEdit *>(openEditor(&browser, browser.topLevelItem(temperature)));
    QVERIFY(editor);
    QCOMPARE(factory.editorsMade(), 1);
    QTRY_VERIFY(editor->hasFocus());
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("36.6"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(temperature->value().value<Temperature>().celsius, 36.6);
    QCOMPARE(treeOf(&browser)->topLevelItem(0)->text(1), QStringLiteral("36.6 C"));
    temperature->setAttribute(QStringLiteral("fahrenheit"), true);
    QVERIFY(treeOf(&browser)->topLevelItem(0)->text(1).endsWith(QStringLiteral(" F")));

    // The base's types still get the base's editors from the subclassed factory, here in
    // a frame; Escape in the framed editor abandons the edit, Enter writes it.
    QWidget *frame = openEditor(&browser, browser.topLevelItem(count));
    QVERIFY(frame);
    auto *spin = frame->findChild<QSpinBox *>();
    QVERIFY(spin);
    QCOMPARE(factory.editorsMade(), 1);
    QTRY_VERIFY(spin->hasFocus());
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("64"));
    QTest::keyClick(spin, Qt::Key_Escape);
    QTest::qWait(1);
    QCOMPARE(count->value().toInt(), 0);
    frame = openEditor(&browser, browser.topLevelItem(count));
    spin = frame->findChild<QSpinBox *>();
    QTRY_VERIFY(spin->hasFocus());
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("64"));
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(count->value().toInt(), 64);
}

void TestTreePropertyBrowser::columns()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    pane.add(QMetaType::QString, QStringLiteral("A rather long property name"),
             QStringLiteral("v"));
    pane.add(QMetaType::Int, QStringLiteral("n"));
    pane.show();
    QHeaderView *header = treeOf(browser)->header();
    const int width = treeOf(browser)->viewport()->width();

    QCOMPARE(browser->resizeMode(), QtTreePropertyBrowser::Stretch);
    QVERIFY(qAbs(browser->splitterPosition() - width / 2) <= 1);

    // Set before the browser is shown, the position holds once it is (as an item editor's
    // pane sets it).
    QtTreePropertyBrowser early;
    early.setResizeMode(QtTreePropertyBrowser::Interactive);
    early.setSplitterPosition(123);
    early.resize(400, 200);
    early.show();
    QVERIFY(QTest::qWaitForWindowExposed(&early));
    QCOMPARE(early.splitterPosition(), 123);
    early.resize(500, 200);
    QCOMPARE(early.splitterPosition(), 123);
    early.hide();

    browser->setResizeMode(QtTreePropertyBrowser::Interactive);
    browser->setSplitterPosition(150);
    QCOMPARE(browser->splitterPosition(), 150);
    QCOMPARE(header->sectionSize(0), 150);
    QCOMPARE(header->sectionSize(0) + header->sectionSize(1), width); // the value takes the rest

    // The user drags the column border.
    const int border = header->sectionViewportPosition(1);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {},
                      QPoint(border - 1, header->height() / 2));
    QMouseEvent move(QEvent::MouseMove, QPointF(border + 59, header->height() / 2), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(header->viewport(), &move);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {},
                        QPoint(border + 59, header->height() / 2));
    QCOMPARE(browser->splitterPosition(), 210);

    browser->setResizeMode(QtTreePropertyBrowser::Fixed);
    QCOMPARE(header->sectionResizeMode(0), QHeaderView::Fixed);
    browser->setSplitterPosition(120);
    QCOMPARE(browser->splitterPosition(), 120);

    browser->setResizeMode(QtTreePropertyBrowser::ResizeToContents);
    QVERIFY(browser->splitterPosition() >= treeOf(browser)->fontMetrics().horizontalAdvance(
                    QStringLiteral("A rather long property name")));

    browser->setResizeMode(QtTreePropertyBrowser::Stretch);
    browser->setSplitterPosition(40); // the columns share the width
    QVERIFY(qAbs(browser->splitterPosition() - width / 2) <= 1);

    browser->setHeaderVisible(false);
    QVERIFY(!browser->isHeaderVisible());
    QVERIFY(header->isHidden());
    browser->setAlternatingRowColors(false);
    QVERIFY(!treeOf(browser)->alternatingRowColors());
}

void TestTreePropertyBrowser::expandAndCurrent()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *point = pane.add(QMetaType::QPoint, QStringLiteral("point"));
    QtVariantProperty *other = pane.add(QMetaType::Int, QStringLiteral("other"));
    QtBrowserItem *pointItem = browser->topLevelItem(point);
    QSignalSpy collapsed(browser, &QtTreePropertyBrowser::collapsed);
    QSignalSpy expanded(browser, &QtTreePropertyBrowser::expanded);
    QSignalSpy current(browser, &QtAbstractPropertyBrowser::currentItemChanged);

    QVERIFY(browser->isExpanded(pointItem));
    browser->setExpanded(pointItem, false);
    QVERIFY(!browser->isExpanded(pointItem));
    QCOMPARE(collapsed.count(), 1);
    QCOMPARE(collapsed.at(0).at(0).value<QtBrowserItem *>(), pointItem);
    browser->setExpanded(pointItem, true);
    QCOMPARE(expanded.count(), 1);

    QtBrowserItem *xItem = pointItem->children().at(0);
    browser->setCurrentItem(xItem);
    QCOMPARE(browser->currentItem(), xItem);
    QCOMPARE(treeOf(browser)->currentItem(), rowOf(browser, xItem));
    QCOMPARE(current.count(), 1);

    // Clicking a row makes it current; removing the current row moves the current item on.
    pane.show();
    clickCell(browser, rowOf(browser, browser->topLevelItem(other)), 0);
    QCOMPARE(browser->currentItem(), browser->topLevelItem(other));
    // Editing starts in the value column even when the name was clicked.
    QVERIFY(qobject_cast<QSpinBox *>(
            treeOf(browser)->indexWidget(treeOf(browser)->currentIndex())));
    QtBrowserItem *removed = browser->topLevelItem(other);
    current.clear();
    browser->removeProperty(other);
    QVERIFY(!browser->topLevelItem(other));
    // The current item moved on to a live item of the browser, or to none.
    QtBrowserItem *now = browser->currentItem();
    QVERIFY(now != removed);
    QVERIFY(!now || browser->items(now->property()).contains(now));
    QVERIFY(!current.isEmpty());
    QCOMPARE(current.constLast().at(0).value<QtBrowserItem *>(), now);
    browser->editItem(xItem);
    QCOMPARE(browser->currentItem(), xItem);
    QVERIFY(qobject_cast<QSpinBox *>(
            treeOf(browser)->indexWidget(treeOf(browser)->currentIndex())));
}

void TestTreePropertyBrowser::sharedProperty()
{
    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    QtTreePropertyBrowser first;
    QtTreePropertyBrowser second;
    first.setFactoryForManager<QtVariantPropertyManager>(&manager, &factory);
    second.setFactoryForManager<QtVariantPropertyManager>(&manager, &factory);
    QtVariantProperty *text = manager.addProperty(QMetaType::QString, QStringLiteral("text"));
    QtVariantProperty *font = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    first.addProperty(text);
    first.addProperty(font);
    second.addProperty(text);
    second.addProperty(font);
    QVERIFY(first.topLevelItem(text) != second.topLevelItem(text));

    first.show();
    QApplication::setActiveWindow(&first);
    QVERIFY(QTest::qWaitForWindowActive(&first));
    auto *editor = qobject_cast<QLineEdit *>(openEditor(&first, first.topLevelItem(text)));
    QVERIFY(editor);
    QTRY_VERIFY(editor->hasFocus());
    QTest::keyClicks(editor, QStringLiteral("shared"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(treeOf(&second)->topLevelItem(0)->text(1), QStringLiteral("shared"));
    manager.variantProperty(font->subProperties().at(2))->setValue(true);
    QCOMPARE(treeOf(&first)->topLevelItem(1)->child(2)->text(1), QStringLiteral("True"));
    QCOMPARE(treeOf(&second)->topLevelItem(1)->child(2)->text(1), QStringLiteral("True"));

    first.removeProperty(text);
    QCOMPARE(treeOf(&second)->topLevelItemCount(), 2);
    delete font;
    QCOMPARE(treeOf(&first)->topLevelItemCount(), 0);
    QCOMPARE(treeOf(&second)->topLevelItemCount(), 1);

    // Unsetting the factory in one browser leaves the other one editing.
    first.addProperty(text);
    first.unsetFactoryForManager(&manager);
    QVERIFY(!openEditor(&first, first.topLevelItem(text)));
    second.show();
    QApplication::setActiveWindow(&second);
    QVERIFY(QTest::qWaitForWindowActive(&second));
    QVERIFY(qobject_cast<QLineEdit *>(openEditor(&second, second.topLevelItem(text))));
    QVERIFY(factory.propertyManagers().contains(&manager));
    second.unsetFactoryForManager(&manager);
    QVERIFY(!factory.propertyManagers().contains(&manager));
}

void TestTreePropertyBrowser::lifetimes()
{
    // The manager goes first, with an editor open.
    {
        Pane pane;
        QtVariantProperty *text = pane.add(QMetaType::QString, QStringLiteral("text"));
        pane.add(QMetaType::QFont, QStringLiteral("font"));
        pane.show();
        QPointer<QWidget> editor = openEditor(pane.browser.get(), pane.browser->topLevelItem(text));
        QVERIFY(editor);
        QTest::keyClicks(editor, QStringLiteral("typed"));
        pane.manager.reset();
        QVERIFY(pane.browser->topLevelItems().isEmpty());
        QCOMPARE(treeOf(pane.browser.get())->topLevelItemCount(), 0);
        QTRY_VERIFY(!editor);
        QVERIFY(pane.factory->propertyManagers().isEmpty());
    }
    // The browser goes first, with an editor open; the manager lives on.
    {
        Pane pane;
        QtVariantProperty *text = pane.add(QMetaType::QString, QStringLiteral("text"));
        pane.show();
        QVERIFY(openEditor(pane.browser.get(), pane.browser->topLevelItem(text)));
        pane.browser.reset();
        text->setValue(QStringLiteral("after the browser"));
        QCOMPARE(text->value().toString(), QStringLiteral("after the browser"));
        QtTreePropertyBrowser again;
        again.setFactoryForManager<QtVariantPropertyManager>(pane.manager.get(),
                                                             pane.factory.get());
        again.addProperty(text);
        QCOMPARE(treeOf(&again)->topLevelItem(0)->text(1), QStringLiteral("after the browser"));
    }
    // The factory goes first: no editors any more, nothing else changes.
    {
        Pane pane;
        QtVariantProperty *text = pane.add(QMetaType::QString, QStringLiteral("text"));
        pane.show();
        QPointer<QWidget> editor = openEditor(pane.browser.get(), pane.browser->topLevelItem(text));
        QVERIFY(editor);
        pane.factory.reset();
        text->setValue(QStringLiteral("no factory"));
        QCOMPARE(treeOf(pane.browser.get())->topLevelItem(0)->text(1),
                 QStringLiteral("no factory"));
        QVERIFY(!openEditor(pane.browser.get(), pane.browser->topLevelItem(text)));
    }
    // Manager before factory before browser, and the reverse, with nothing shown.
    {
        Pane pane;
        pane.add(QMetaType::QFont, QStringLiteral("font"));
        pane.manager.reset();
        pane.factory.reset();
        pane.browser.reset();
    }
    {
        Pane pane;
        pane.add(QMetaType::QFont, QStringLiteral("font"));
        pane.browser.reset();
        pane.factory.reset();
        pane.manager.reset();
    }
}

void TestTreePropertyBrowser::renderToImage()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    // Set before the browser is shown, the position holds once it is (as an item editor's
    // pane sets it).
    QtTreePropertyBrowser early;
    early.setResizeMode(QtTreePropertyBrowser::Interactive);
    early.setSplitterPosition(123);
    early.resize(400, 200);
    early.show();
    QVERIFY(QTest::qWaitForWindowExposed(&early));
    QCOMPARE(early.splitterPosition(), 123);
    early.resize(500, 200);
    QCOMPARE(early.splitterPosition(), 123);
    early.hide();

    browser->setResizeMode(QtTreePropertyBrowser::Interactive);
    browser->setSplitterPosition(150);
    QtVariantProperty *text =
            pane.add(QMetaType::QString, QStringLiteral("text"), QStringLiteral("New Item"));
    text->setModified(true);
    pane.add(QMetaType::Bool, QStringLiteral("checkable"), true);
    pane.add(QMetaType::QColor, QStringLiteral("color"), QColor(40, 120, 200));
    QtVariantProperty *flags =
            pane.add(QtVariantPropertyManager::flagTypeId(), QStringLiteral("flags"));
    flags->setAttribute(QStringLiteral("flagNames"),
                        QStringList({"Selectable", "Editable", "Enabled"}));
    flags->setValue(5);
    QtVariantProperty *state =
            pane.add(QtVariantPropertyManager::enumTypeId(), QStringLiteral("checkState"));
    state->setAttribute(QStringLiteral("enumNames"),
                        QStringList({"Unchecked", "PartiallyChecked", "Checked"}));
    state->setValue(2);
    QtVariantProperty *font = pane.add(QMetaType::QFont, QStringLiteral("font"));
    QtVariantProperty *disabled = pane.add(QMetaType::Int, QStringLiteral("disabled"), 3);
    disabled->setEnabled(false);
    browser->setExpanded(browser->topLevelItem(font), false);
    QtVariantProperty *group =
            pane.add(QtVariantPropertyManager::groupTypeId(), QStringLiteral("Geometry"));
    group->addSubProperty(pane.manager->addProperty(QMetaType::QSize, QStringLiteral("size")));
    browser->setExpanded(browser->topLevelItem(group)->children().at(0), false);
    browser->setPropertiesWithoutValueMarked(true);
    pane.show();
    QVERIFY(openEditor(browser, browser->topLevelItem(state)));

    const QImage image = browser->grab().toImage();
    QVERIFY(image.save(QStringLiteral("treepropertybrowser.png")));
    // Something was drawn: the rows are not all of one colour.
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        colours.insert(image.pixel(image.width() / 4, y));
    QVERIFY(colours.size() > 3);
}

QTEST_MAIN(TestTreePropertyBrowser)
#include "tst_treepropertybrowser.moc"
