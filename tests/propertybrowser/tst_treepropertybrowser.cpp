// The tree browser as a user meets it: rows that follow the properties, values edited in
// place with the mouse and the keyboard, columns, and browsers, managers and factories
// going away in any order.

#include "qtcompat.h"

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

// A browser with its manager and factory, as in an item editor; the custom pair adds the
// temperature type and frames the base's editors.
struct Pane
{
    explicit Pane(bool custom = false)
        : manager(custom ? new TemperaturePropertyManager : new QtVariantPropertyManager),
          factory(custom ? new TemperatureEditorFactory : new QtVariantEditorFactory)
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
    QtVariantProperty *add(int type, const char *name, const QVariant &value = QVariant())
    {
        QtVariantProperty *property = manager->addProperty(type, QLatin1String(name));
        if (value.isValid())
            property->setValue(value);
        browser->addProperty(property);
        return property;
    }

    std::unique_ptr<QtVariantPropertyManager> manager;
    std::unique_ptr<QtVariantEditorFactory> factory;
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

static QString rowValue(QtTreePropertyBrowser *browser, QtProperty *property)
{
    return rowOf(browser, browser->topLevelItem(property))->text(1);
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

static QWidget *currentEditor(QtAbstractPropertyBrowser *browser)
{
    return treeOf(browser)->indexWidget(treeOf(browser)->currentIndex());
}

// Clicks the value cell of the item and returns the editor that opened there.
static QWidget *openEditor(QtAbstractPropertyBrowser *browser, QtBrowserItem *item, int column = 1)
{
    clickCell(browser, rowOf(browser, item), column);
    return currentEditor(browser);
}

// Presses the editor's dialog button and lets `act` answer the modal dialog.
template<typename Dialog, typename Act>
static bool answerDialog(QWidget *editor, Act act)
{
    QToolButton *button = editor ? editor->findChild<QToolButton *>() : nullptr;
    if (!button)
        return false;
    bool seen = false;
    QTimer::singleShot(0, qApp, [&seen, act] {
        if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            seen = true;
            act(dialog);
        }
    });
    QTest::mouseClick(button, Qt::LeftButton);
    return seen;
}

class TestTreePropertyBrowser : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { registerPropertyMetaTypes(); }
    void rowsFollowProperties();
    void rowDisplay();
    void editInPlace_data();
    void editInPlace();
    void keyboardAndCurrentItem();
    void choicesAndDialogs();
    void splitterAndResizeMode();
    void sharedProperty();
    void deletionOrders_data();
    void deletionOrders();
};

void TestTreePropertyBrowser::rowsFollowProperties()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QTreeWidget *tree = treeOf(browser);
    QtVariantProperty *a = pane.manager->addProperty(QMetaType::Int, QStringLiteral("a"));
    QtVariantProperty *b = pane.add(QMetaType::Int, "b");
    QtVariantProperty *c = pane.manager->addProperty(QMetaType::Int, QStringLiteral("c"));
    QVERIFY(!browser->addProperty(b)); // once only
    QtBrowserItem *itemA = browser->insertProperty(a, nullptr);
    QtBrowserItem *itemC = browser->insertProperty(c, b);
    // Only after a property the browser shows.
    QtVariantProperty *notShown = pane.manager->addProperty(QMetaType::Int);
    QVERIFY(!browser->insertProperty(pane.manager->addProperty(QMetaType::Int), notShown));
    QCOMPARE(browser->topLevelItems(),
             QList<QtBrowserItem *>({itemA, browser->topLevelItem(b), itemC}));
    QCOMPARE(rowNames(tree), QStringList({"a", "b", "c"}));
    browser->removeProperty(b);
    QVERIFY(browser->items(b).isEmpty());
    QCOMPARE(rowNames(tree), QStringList({"a", "c"}));
    browser->insertProperty(b, a);
    delete a;
    QCOMPARE(browser->properties(), QList<QtProperty *>({b, c}));
    QCOMPARE(rowNames(tree), QStringList({"b", "c"}));
    browser->clear();
    QVERIFY(browser->topLevelItems().isEmpty());
    QCOMPARE(tree->topLevelItemCount(), 0);
    QVERIFY(pane.manager->properties().contains(b)); // removing deletes nothing

    // Sub-properties follow their parents; a property under two parents shows twice.
    QtVariantProperty *group = pane.add(QtVariantPropertyManager::groupTypeId(), "group");
    QtVariantProperty *other = pane.add(QtVariantPropertyManager::groupTypeId(), "other");
    group->addSubProperty(c);
    group->insertSubProperty(b, nullptr);
    other->addSubProperty(b);
    b->setValue(12);
    QTreeWidgetItem *groupRow = tree->topLevelItem(0);
    QCOMPARE(groupRow->child(0)->text(0), QStringLiteral("b"));
    QCOMPARE(browser->items(b).size(), 2);
    for (QtBrowserItem *item : browser->items(b))
        QCOMPARE(rowOf(browser, item)->text(1), QStringLiteral("12"));
    group->removeSubProperty(c);
    delete b;
    QCOMPARE(groupRow->childCount(), 0);
    QCOMPARE(tree->topLevelItem(1)->childCount(), 0);

    QtVariantProperty *flags = pane.add(QtVariantPropertyManager::flagTypeId(), "flags");
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B", "C"}));
    QCOMPARE(tree->topLevelItem(2)->childCount(), 3);
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A"}));
    QCOMPARE(tree->topLevelItem(2)->childCount(), 1);
}

void TestTreePropertyBrowser::rowDisplay()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *text = pane.add(QMetaType::QString, "text");
    QtVariantProperty *font = pane.add(QMetaType::QFont, "font");
    QtVariantProperty *group = pane.add(QtVariantPropertyManager::groupTypeId(), "A group");
    QTreeWidgetItem *textRow = rowOf(browser, browser->topLevelItem(text));
    QtBrowserItem *fontItem = browser->topLevelItem(font);
    QTreeWidgetItem *fontRow = rowOf(browser, fontItem);
    QTreeWidgetItem *groupRow = rowOf(browser, browser->topLevelItem(group));

    text->setPropertyName(QStringLiteral("caption"));
    text->setToolTip(QStringLiteral("The caption"));
    QCOMPARE(textRow->text(0), QStringLiteral("caption"));
    QCOMPARE(textRow->toolTip(0), QStringLiteral("The caption"));

    // Modified: a bold name, that only changes the weight of the browser's font.
    text->setModified(true);
    QVERIFY(textRow->font(0).bold());
    QCOMPARE(CcQt::fontResolveMask(textRow->font(0)), uint(QFont::WeightResolved));
    text->setModified(false);
    QVERIFY(!textRow->font(0).bold());

    // Disabled: greyed and not editable, and so is everything below it.
    font->setEnabled(false);
    QVERIFY(!(fontRow->flags() & Qt::ItemIsEnabled));
    QVERIFY(!(fontRow->child(2)->flags() & Qt::ItemIsEnabled));
    pane.show();
    QVERIFY(!openEditor(browser, fontItem->children().at(2)));
    font->setEnabled(true);
    QVERIFY(fontRow->child(2)->flags() & Qt::ItemIsEnabled);

    // A group has no value: one cell across the row, darker when marked.
    QVERIFY(groupRow->isFirstColumnSpanned());
    QVERIFY(!(groupRow->flags() & Qt::ItemIsEditable));
    browser->setPropertiesWithoutValueMarked(true);
    QCOMPARE(groupRow->background(0).color(), browser->palette().color(QPalette::Dark));
    QVERIFY(!textRow->data(0, Qt::BackgroundRole).isValid());

    // Background colours are inherited by the items below.
    browser->setBackgroundColor(fontItem, Qt::yellow);
    QCOMPARE(fontRow->child(0)->background(1).color(), QColor(Qt::yellow));
}

void TestTreePropertyBrowser::editInPlace_data()
{
    QTest::addColumn<bool>("custom");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("initial");
    QTest::addColumn<QByteArray>("editorClass");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");

    const int string = QMetaType::QString;
    const int temperature = TemperaturePropertyManager::temperatureTypeId();
    QTest::newRow("text, Enter") << false << string << QVariant(QStringLiteral("old"))
                                 << QByteArray("QLineEdit") << "Hello" << int(Qt::Key_Return)
                                 << "Hello";
    QTest::newRow("text, Escape") << false << string << QVariant(QStringLiteral("old"))
                                  << QByteArray("QLineEdit") << "Abandoned" << int(Qt::Key_Escape)
                                  << "old";
    QTest::newRow("int") << false << int(QMetaType::Int) << QVariant(5) << QByteArray("QSpinBox")
                         << "77" << int(Qt::Key_Return) << "77";
    QTest::newRow("double") << false << int(QMetaType::Double) << QVariant(0.5)
                            << QByteArray("QDoubleSpinBox") << "2.25" << int(Qt::Key_Return)
                            << "2.25";
    // A subclassed factory: its own editor for its own type, the base's editors framed.
    QTest::newRow("custom type") << true << temperature << QVariant() << QByteArray("QLineEdit")
                                 << "36.6" << int(Qt::Key_Return) << "36.6 C";
    QTest::newRow("framed, Escape") << true << int(QMetaType::Int) << QVariant(3)
                                    << QByteArray("QSpinBox") << "64" << int(Qt::Key_Escape) << "3";
    QTest::newRow("framed, Enter") << true << int(QMetaType::Int) << QVariant(3)
                                   << QByteArray("QSpinBox") << "64" << int(Qt::Key_Return) << "64";
}

void TestTreePropertyBrowser::editInPlace()
{
    QFETCH(bool, custom);
    QFETCH(int, type);
    QFETCH(QVariant, initial);
    QFETCH(QByteArray, editorClass);
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(QString, text);

    Pane pane(custom);
    QtVariantProperty *property = pane.add(type, "p", initial);
    pane.show();
    QSignalSpy values(pane.manager.get(), &QtVariantPropertyManager::valueChanged);
    QWidget *editor = openEditor(pane.browser.get(), pane.browser->topLevelItem(property));
    QVERIFY(editor);
    QCOMPARE(pane.browser->currentItem(), pane.browser->topLevelItem(property));
    QWidget *field = editor;
    const QList<QWidget *> inside = editor->findChildren<QWidget *>();
    for (auto it = inside.begin(); !field->inherits(editorClass) && it != inside.end(); ++it)
        field = *it;
    QVERIFY2(field->inherits(editorClass), editor->metaObject()->className());

    QTRY_VERIFY(field->hasFocus());
    QVERIFY(QMetaObject::invokeMethod(field, "selectAll"));
    QTest::keyClicks(field, typed);
    QVERIFY(values.isEmpty()); // nothing is written while typing
    QTest::keyClick(field, Qt::Key(key));
    QTest::qWait(1);
    QCOMPARE(property->valueText(), text);
    QCOMPARE(rowValue(pane.browser.get(), property), text);
}

void TestTreePropertyBrowser::keyboardAndCurrentItem()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *text = pane.add(QMetaType::QString, "text", QStringLiteral("old"));
    QtVariantProperty *number = pane.add(QMetaType::Int, "number", 1);
    pane.show();
    QTreeWidget *tree = treeOf(browser);

    // Leaving the row writes what was typed, and a click on a name edits that row's value.
    QPointer<QLineEdit> editor =
            qobject_cast<QLineEdit *>(openEditor(browser, browser->topLevelItem(text)));
    QVERIFY(editor);
    QTRY_VERIFY(editor->hasFocus());
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("Left behind"));
    QVERIFY(qobject_cast<QSpinBox *>(openEditor(browser, browser->topLevelItem(number), 0)));
    QCOMPARE(text->value().toString(), QStringLiteral("Left behind"));
    QTRY_VERIFY(!editor);

    // Moving with the keyboard opens no editor; Enter and F2 do, as in any view.
    tree->setFocus();
    browser->setCurrentItem(browser->topLevelItem(text));
    QTest::keyClick(tree, Qt::Key_Return);
    QVERIFY(qobject_cast<QLineEdit *>(currentEditor(browser)));
    QTest::keyClick(currentEditor(browser), Qt::Key_Escape);
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(browser->currentItem(), browser->topLevelItem(number));
    QVERIFY(!currentEditor(browser));
    QTest::keyClick(tree, Qt::Key_F2);
    QVERIFY(qobject_cast<QSpinBox *>(currentEditor(browser)));

    // Removing the current row moves the current item on to a live item, or to none.
    QSignalSpy current(browser, &QtAbstractPropertyBrowser::currentItemChanged);
    QtBrowserItem *removed = browser->currentItem();
    browser->removeProperty(number);
    QtBrowserItem *now = browser->currentItem();
    QVERIFY(now != removed);
    QVERIFY(!now || browser->items(now->property()).contains(now));
    QVERIFY(!current.isEmpty());
    QCOMPARE(current.constLast().at(0).value<QtBrowserItem *>(), now);
}

void TestTreePropertyBrowser::choicesAndDialogs()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    QtVariantProperty *number = pane.add(QMetaType::Int, "number", 5);
    QtVariantProperty *choice = pane.add(QtVariantPropertyManager::enumTypeId(), "choice");
    choice->setAttribute(QStringLiteral("enumNames"), QStringList({"Red", "Green", "Blue"}));
    QtVariantProperty *font = pane.add(QMetaType::QFont, "font");
    QtVariantProperty *shortcut = pane.add(QMetaType::QKeySequence, "shortcut");
    QtVariantProperty *color = pane.add(QMetaType::QColor, "color", QColor(Qt::red));
    pane.show();

    // Attributes and the values they clamp reach an open editor.
    auto *spin = qobject_cast<QSpinBox *>(openEditor(browser, browser->topLevelItem(number)));
    QVERIFY(spin);
    number->setAttribute(QStringLiteral("maximum"), 4);
    QCOMPARE(spin->maximum(), 4);
    QCOMPARE(spin->value(), 4);

    auto *combo = qobject_cast<QComboBox *>(openEditor(browser, browser->topLevelItem(choice)));
    QVERIFY(combo);
    QCOMPARE(combo->count(), 3);
    QTRY_VERIFY(combo->hasFocus());
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(rowValue(browser, choice), QStringLiteral("Green"));

    // A sub-property editor changes the parent; a click anywhere in a check cell toggles.
    QtBrowserItem *fontItem = browser->topLevelItem(font);
    auto *bold = qobject_cast<QCheckBox *>(openEditor(browser, fontItem->children().at(2)));
    QVERIFY(bold);
    QTest::mouseClick(bold, Qt::LeftButton, {}, bold->rect().center());
    QVERIFY(font->value().value<QFont>().bold());
    QCOMPARE(rowOf(browser, fontItem->children().at(2))->text(1), QStringLiteral("True"));

    auto *keys =
            qobject_cast<QKeySequenceEdit *>(openEditor(browser, browser->topLevelItem(shortcut)));
    QVERIFY(keys);
    QTRY_VERIFY(keys->hasFocus() || keys->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_K, Qt::ControlModifier);
    // The key sequence is taken once the user pauses.
    QTRY_COMPARE(shortcut->value().value<QKeySequence>(), QKeySequence(Qt::CTRL | Qt::Key_K));
    QCOMPARE(rowValue(browser, shortcut),
             QKeySequence(Qt::CTRL | Qt::Key_K).toString(QKeySequence::NativeText));

    // Dialogs open on the current value; a cancelled one changes nothing.
    QColor shown;
    auto pickBlue = [&shown](QColorDialog *dialog) {
        shown = dialog->currentColor();
        dialog->setCurrentColor(Qt::blue);
        dialog->accept();
    };
    auto cancel = [](QColorDialog *dialog) {
        dialog->setCurrentColor(Qt::green);
        dialog->reject();
    };
    QtBrowserItem *colorItem = browser->topLevelItem(color);
    QVERIFY(answerDialog<QColorDialog>(openEditor(browser, colorItem), pickBlue));
    QVERIFY(answerDialog<QColorDialog>(openEditor(browser, colorItem), cancel));
    QCOMPARE(shown, QColor(Qt::red));
    QCOMPARE(rowValue(browser, color), QStringLiteral("[0, 0, 255] (255)"));

    // A font from the dialog shows in the rows below.
    auto pickFont = [](QFontDialog *dialog) {
        QFont chosen = dialog->currentFont();
        chosen.setPointSize(31);
        chosen.setUnderline(true);
        dialog->setCurrentFont(chosen);
        dialog->accept();
    };
    QVERIFY(answerDialog<QFontDialog>(openEditor(browser, fontItem), pickFont));
    QCOMPARE(rowOf(browser, fontItem->children().at(1))->text(1), QStringLiteral("31"));
    QCOMPARE(rowOf(browser, fontItem->children().at(4))->text(1), QStringLiteral("True"));
}

void TestTreePropertyBrowser::splitterAndResizeMode()
{
    Pane pane;
    QtTreePropertyBrowser *browser = pane.browser.get();
    const char *longName = "A rather long property name";
    pane.add(QMetaType::QString, longName, QStringLiteral("v"));
    QCOMPARE(browser->resizeMode(), QtTreePropertyBrowser::Stretch);
    // Set before the browser is shown (as an item editor's pane sets it), the position holds
    // once it is, and through resizes; the value column takes the rest.
    browser->setResizeMode(QtTreePropertyBrowser::Interactive);
    browser->setSplitterPosition(150);
    pane.show();
    QCOMPARE(browser->splitterPosition(), 150);
    browser->resize(500, 400);
    QTRY_COMPARE(browser->width(), 500);
    QHeaderView *header = treeOf(browser)->header();
    const int width = treeOf(browser)->viewport()->width();
    QTRY_COMPARE(header->sectionSize(1), width - 150);
    QCOMPARE(browser->splitterPosition(), 150);

    // The user drags the column border.
    const int border = header->sectionViewportPosition(1);
    const int y = header->height() / 2;
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, QPoint(border - 1, y));
    QMouseEvent move(QEvent::MouseMove, QPointF(border + 59, y), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(header->viewport(), &move);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, QPoint(border + 59, y));
    QCOMPARE(browser->splitterPosition(), 210);

    browser->setResizeMode(QtTreePropertyBrowser::Fixed);
    QCOMPARE(header->sectionResizeMode(0), QHeaderView::Fixed);
    browser->setSplitterPosition(120);
    QCOMPARE(browser->splitterPosition(), 120);
    browser->setResizeMode(QtTreePropertyBrowser::ResizeToContents);
    QVERIFY(browser->splitterPosition()
            >= treeOf(browser)->fontMetrics().horizontalAdvance(QLatin1String(longName)));
    browser->setResizeMode(QtTreePropertyBrowser::Stretch);
    browser->setSplitterPosition(40); // the columns share the width
    QVERIFY(qAbs(browser->splitterPosition() - width / 2) <= 1);
}

void TestTreePropertyBrowser::sharedProperty()
{
    Pane one;
    QtTreePropertyBrowser second;
    second.setFactoryForManager<QtVariantPropertyManager>(one.manager.get(), one.factory.get());
    QtTreePropertyBrowser *first = one.browser.get();
    QtVariantProperty *text = one.add(QMetaType::QString, "text");
    QtVariantProperty *font = one.add(QMetaType::QFont, "font");
    second.addProperty(text);
    second.addProperty(font);
    QVERIFY(first->topLevelItem(text) != second.topLevelItem(text));

    one.show();
    auto *editor = qobject_cast<QLineEdit *>(openEditor(first, first->topLevelItem(text)));
    QVERIFY(editor);
    QTRY_VERIFY(editor->hasFocus());
    QTest::keyClicks(editor, QStringLiteral("shared"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(rowValue(&second, text), QStringLiteral("shared"));
    one.manager->variantProperty(font->subProperties().at(2))->setValue(true);
    QCOMPARE(treeOf(first)->topLevelItem(1)->child(2)->text(1), QStringLiteral("True"));
    QCOMPARE(treeOf(&second)->topLevelItem(1)->child(2)->text(1), QStringLiteral("True"));

    first->removeProperty(text);
    QCOMPARE(treeOf(&second)->topLevelItemCount(), 2);
    delete font;
    QCOMPARE(treeOf(first)->topLevelItemCount(), 0);
    QCOMPARE(treeOf(&second)->topLevelItemCount(), 1);

    // Unsetting the factory in one browser leaves the other one editing.
    first->addProperty(text);
    first->unsetFactoryForManager(one.manager.get());
    QVERIFY(!openEditor(first, first->topLevelItem(text)));
    second.show();
    QApplication::setActiveWindow(&second);
    QVERIFY(QTest::qWaitForWindowActive(&second));
    QVERIFY(qobject_cast<QLineEdit *>(openEditor(&second, second.topLevelItem(text))));
}

void TestTreePropertyBrowser::deletionOrders_data()
{
    QTest::addColumn<QString>("order"); // manager, factory, browser
    for (const char *order : {"mfb", "mbf", "fmb", "fbm", "bmf", "bfm"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void TestTreePropertyBrowser::deletionOrders()
{
    QFETCH(QString, order);
    Pane pane;
    QtVariantProperty *text = pane.add(QMetaType::QString, "text");
    pane.add(QMetaType::QFont, "font");
    pane.show();
    QPointer<QWidget> editor = openEditor(pane.browser.get(), pane.browser->topLevelItem(text));
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("typed"));

    for (const QChar gone : order) {
        if (gone == QLatin1Char('m'))
            pane.manager.reset();
        else if (gone == QLatin1Char('f'))
            pane.factory.reset();
        else
            pane.browser.reset();
        QtTreePropertyBrowser *browser = pane.browser.get();
        if (!pane.manager && browser) {
            QVERIFY(browser->topLevelItems().isEmpty());
            QCOMPARE(treeOf(browser)->topLevelItemCount(), 0);
        }
        if (!pane.manager || !browser)
            QTRY_VERIFY(!editor);
        if (!pane.manager && pane.factory)
            QVERIFY(pane.factory->propertyManagers().isEmpty());
        if (pane.manager) {
            text->setValue(order + gone);
            if (browser)
                QCOMPARE(rowValue(browser, text), order + gone);
            if (browser && !pane.factory)
                QVERIFY(!openEditor(browser, browser->topLevelItem(text)));
        }
    }
}

QTEST_MAIN(TestTreePropertyBrowser)
#include "tst_treepropertybrowser.moc"
