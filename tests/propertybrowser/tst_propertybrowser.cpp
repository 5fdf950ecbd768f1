// The property browser on its own, as far as the item editors' pane uses it. The variant
// manager: values and their texts, compound values and their sub-properties, attributes. The
// tree browser as a user meets it: how rows show their properties, values edited in place with
// the mouse and the keyboard, columns, and browsers, managers and factories going away in any
// order.

#include "modalanswer.h"
#include "qtcompat.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

// Counts the properties made through addProperty(), as a subclass adding types sees them.
class CountingManager : public QtVariantPropertyManager
{
public:
    QtVariantProperty *addProperty(int propertyType, const QString &name = QString()) override
    {
        ++made[propertyType];
        return QtVariantPropertyManager::addProperty(propertyType, name);
    }
    QHash<int, int> made;
};

QtVariantProperty *sub(QtVariantProperty *parent, int index)
{
    auto *manager = static_cast<QtVariantPropertyManager *>(parent->propertyManager());
    return manager->variantProperty(parent->subProperties().at(index));
}

QStringList names(const QList<QtProperty *> &properties)
{
    QStringList result;
    for (const QtProperty *property : properties)
        result.append(property->propertyName());
    return result;
}

void showActive(QWidget *window)
{
    window->show();
    QApplication::setActiveWindow(window);
    QVERIFY(QTest::qWaitForWindowActive(window));
}

// A browser with its manager and factory, as in an item editor.
struct Pane
{
    Pane()
    {
        browser->setFactoryForManager<QtVariantPropertyManager>(manager.get(), factory.get());
        browser->resize(420, 400);
    }
    void show() { showActive(browser.get()); }
    QtVariantProperty *add(int type, const char *name, const QVariant &value = QVariant())
    {
        QtVariantProperty *property = manager->addProperty(type, QLatin1String(name));
        if (value.isValid())
            property->setValue(value);
        browser->addProperty(property);
        return property;
    }

    std::unique_ptr<QtVariantPropertyManager> manager {new QtVariantPropertyManager};
    std::unique_ptr<QtVariantEditorFactory> factory {new QtVariantEditorFactory};
    std::unique_ptr<QtTreePropertyBrowser> browser {new QtTreePropertyBrowser};
};

QTreeWidget *treeOf(QtAbstractPropertyBrowser *browser)
{
    return browser->findChild<QTreeWidget *>();
}

// The rows showing the properties of that name.
QList<QTreeWidgetItem *> rows(QtAbstractPropertyBrowser *browser, const char *name)
{
    return treeOf(browser)->findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive);
}

QString rowValue(QtAbstractPropertyBrowser *browser, const char *name)
{
    return rows(browser, name).value(0)->text(1);
}

QWidget *currentEditor(QtAbstractPropertyBrowser *browser)
{
    return treeOf(browser)->indexWidget(treeOf(browser)->currentIndex().siblingAtColumn(1));
}

// Clicks the name or value cell of a property and returns the editor that opened there.
QWidget *openEditor(QtAbstractPropertyBrowser *browser, const char *name, int column = 1)
{
    QTreeWidget *tree = treeOf(browser);
    QTreeWidgetItem *row = rows(browser, name).value(0);
    tree->scrollToItem(row);
    const int x = tree->header()->sectionViewportPosition(column) + 12;
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      QPoint(x, tree->visualItemRect(row).center().y()));
    return currentEditor(browser);
}

// Presses the dialog button of the item's editor and lets `act` answer the dialog.
template<class Dialog>
bool answerDialog(QtAbstractPropertyBrowser *browser, const char *name,
                  const std::function<void(Dialog *)> &act, bool accept = true)
{
    QWidget *editor = openEditor(browser, name);
    auto *button = editor ? editor->findChild<QToolButton *>() : nullptr;
    return button && CcTest::answerModal<Dialog>([button] { button->click(); }, act, accept);
}

} // namespace

class TestPropertyBrowser : public QObject
{
    Q_OBJECT
private slots:
    void changes()
    {
        QtVariantPropertyManager manager;
        QtVariantProperty *number = manager.addProperty(QMetaType::Int);
        number->setValue(QStringLiteral("17")); // converted
        QCOMPARE(number->value(), QVariant(17));
        QCOMPARE(number->valueText(), QStringLiteral("17"));
        QtVariantProperty *text = manager.addProperty(QMetaType::QString);
        int changes = 0;
        connect(&manager, &QtVariantPropertyManager::valueChanged, this, [&changes] { ++changes; });
        text->setValue(QStringLiteral("a"));
        text->setValue(QVariant::fromValue(QSize(1, 2))); // cannot become a string
        QCOMPARE(changes, 1);
        QCOMPARE(text->value(), QVariant(QStringLiteral("a")));

        QVERIFY(!manager.addProperty(QMetaType::QUrl));
        QtVariantProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
        group->setValue(5);
        QVERIFY(!group->value().isValid());

        // A font equal in every attribute but set differently is a change: what a font sets
        // decides what is written to a form.
        QtVariantProperty *fontProperty = manager.addProperty(QMetaType::QFont);
        QFont explicitFont = fontProperty->value().value<QFont>();
        explicitFont.setBold(explicitFont.bold());
        changes = 0;
        fontProperty->setValue(explicitFont);
        QCOMPARE(changes, 1);
        QCOMPARE(CcQt::fontResolveMask(fontProperty->value().value<QFont>()),
                 CcQt::fontResolveMask(explicitFont));
    }

    void compoundValues()
    {
        // A subclass sees every sub-property made, through its own addProperty().
        CountingManager manager;
        QtVariantProperty *font = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
        QCOMPARE(manager.made.value(QMetaType::Bool), 5);
        QCOMPARE(names(font->subProperties()),
                 QStringList({"Family", "Point Size", "Bold", "Italic", "Underline", "Strikeout",
                              "Kerning"}));
        QFont value;
        value.setFamily(QStringLiteral("NoSuchFamilyAnywhere"));
        value.setUnderline(true);
        font->setValue(value);
        QCOMPARE(sub(font, 0)->valueText(), QStringLiteral("NoSuchFamilyAnywhere"));

        // Each sub-property edit is one change of the font, and marks what it sets.
        int fontChanges = 0;
        connect(&manager, &QtVariantPropertyManager::valueChanged, this,
                [&](QtProperty *property) { fontChanges += property == font; });
        sub(font, 3)->setValue(true);
        QCOMPARE(fontChanges, 1);
        value = font->value().value<QFont>();
        QVERIFY(value.italic());
        QVERIFY(value.underline());
        QVERIFY(CcQt::fontResolveMask(value) & QFont::StyleResolved);
        const QStringList families =
                sub(font, 0)->attributeValue(QStringLiteral("enumNames")).toStringList();
        const int other = families.indexOf(QStringLiteral("NoSuchFamilyAnywhere")) == 0 ? 1 : 0;
        sub(font, 0)->setValue(other);
        QCOMPARE(font->value().value<QFont>().family(), families.value(other));

        QtVariantProperty *flags = manager.addProperty(QtVariantPropertyManager::flagTypeId());
        flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B", "C"}));
        flags->setValue(5);
        QCOMPARE(flags->valueText(), QStringLiteral("A|C"));
        // Fewer names: fewer sub-properties, and the value keeps only the named bits.
        flags->setAttribute(QStringLiteral("flagNames"), QStringList({"X", "Y"}));
        QCOMPARE(names(flags->subProperties()), QStringList({"X", "Y"}));
        QCOMPARE(flags->value().toInt(), 1);
        sub(flags, 1)->setValue(true);
        QCOMPARE(flags->value().toInt(), 3);

        // Deleting a compound value deletes the sub-properties it made.
        const int before = manager.properties().size();
        delete font;
        QCOMPARE(manager.properties().size(), before - 8);
    }

    void attributes()
    {
        QtVariantPropertyManager manager;
        QtVariantProperty *state = manager.addProperty(QtVariantPropertyManager::enumTypeId());
        QCOMPARE(state->value().toInt(), -1);
        state->setAttribute(QStringLiteral("enumNames"), QStringList({"Off", "Partly", "On"}));
        QCOMPARE(state->valueText(), QStringLiteral("Off"));
        state->setValue(2);
        state->setValue(3); // no such entry
        QCOMPARE(state->valueText(), QStringLiteral("On"));
        QPixmap red(8, 8);
        red.fill(Qt::red);
        state->setAttribute(QStringLiteral("enumIcons"),
                            QVariant::fromValue(QtIconMap({{2, red}})));
        QVERIFY(!state->valueIcon().isNull());
        state->setAttribute(QStringLiteral("enumNames"), QStringList({"Only"})); // pulls into range
        QCOMPARE(state->valueText(), QStringLiteral("Only"));

        QtVariantProperty *count = manager.addProperty(QMetaType::Int);
        count->setValue(50);
        count->setAttribute(QStringLiteral("maximum"), 10);
        QCOMPARE(count->value().toInt(), 10);
        count->setAttribute(QStringLiteral("minimum"), 20); // drags the maximum along
        QCOMPARE(count->attributeValue(QStringLiteral("maximum")).toInt(), 20);
        int attributeChanges = 0;
        connect(&manager, &QtVariantPropertyManager::attributeChanged, this,
                [&attributeChanges] { ++attributeChanges; });
        count->setAttribute(QStringLiteral("nonsense"), 1);
        count->setAttribute(QStringLiteral("singleStep"), QVariant::fromValue(QSize(1, 1)));
        QCOMPARE(attributeChanges, 0);

        QtVariantProperty *ratio = manager.addProperty(QMetaType::Double);
        ratio->setAttribute(QStringLiteral("decimals"), 4);
        ratio->setValue(2.0 / 3.0);
        QCOMPARE(ratio->valueText(), QStringLiteral("0.6667"));
    }

    void rowDisplay()
    {
        Pane pane;
        QtTreePropertyBrowser *browser = pane.browser.get();
        QtVariantProperty *text = pane.add(QMetaType::QString, "text");
        QtVariantProperty *font = pane.add(QMetaType::QFont, "font");
        pane.add(QtVariantPropertyManager::groupTypeId(), "group");
        QTreeWidgetItem *textRow = rows(browser, "text").value(0);
        QTreeWidgetItem *fontRow = rows(browser, "font").value(0);
        QTreeWidgetItem *groupRow = rows(browser, "group").value(0);

        text->setToolTip(QStringLiteral("The caption"));
        QCOMPARE(textRow->toolTip(0), QStringLiteral("The caption"));

        // Modified: a bold name, that only changes the weight of the browser's font.
        text->setModified(true);
        QVERIFY(textRow->font(0).bold());
        QCOMPARE(CcQt::fontResolveMask(textRow->font(0)), uint(QFont::WeightResolved));

        // Disabled: greyed and not editable; enabled again, the rows below are too.
        font->setEnabled(false);
        QVERIFY(!(fontRow->flags() & Qt::ItemIsEnabled));
        font->setEnabled(true);
        QVERIFY(fontRow->child(2)->flags() & Qt::ItemIsEnabled);

        // A group has no value: one cell across the row.
        QVERIFY(groupRow->isFirstColumnSpanned());
        QVERIFY(!(groupRow->flags() & Qt::ItemIsEditable));
    }

    void editInPlace_data()
    {
        QTest::addColumn<int>("type");
        // How the editor opens (a click on the "value" or the "name", or a key), what is typed,
        // and how the edit ends (a key, or "leave": a click on the name of the row above).
        QTest::addColumn<QString>("steps");

        const int string = QMetaType::QString;
        QTest::newRow("text, Escape") << string << "Enter Abandoned Escape";
        QTest::newRow("text, left") << string << "F2 Left leave";
        QTest::newRow("int") << int(QMetaType::Int) << "name 77 Enter";
    }

    void editInPlace()
    {
        QFETCH(int, type);
        QFETCH(QString, steps);
        const QStringList step = steps.split(QLatin1Char(' '));
        Pane pane;
        QtTreePropertyBrowser *browser = pane.browser.get();
        QTreeWidget *tree = treeOf(browser);
        QtBrowserItem *above = browser->topLevelItem(pane.add(QMetaType::QString, "above"));
        const QString before = pane.add(type, "p")->valueText();
        pane.show();
        int written = 0;
        connect(pane.manager.get(), &QtVariantPropertyManager::valueChanged, this,
                [&written] { ++written; });
        if (step[0] == "value" || step[0] == "name") {
            openEditor(browser, "p", step[0] == "value");
        } else {
            // Moving with the keyboard opens no editor; Enter and F2 do, as in any view.
            browser->setCurrentItem(above);
            tree->setFocus();
            QTest::keyClick(tree, Qt::Key_Down);
            QVERIFY(!currentEditor(browser));
            QTest::keyClick(tree, step[0] == "F2" ? Qt::Key_F2 : Qt::Key_Return);
        }
        QPointer<QWidget> editor = currentEditor(browser);
        QVERIFY(editor);
        QVERIFY2(editor->inherits(type == QMetaType::Int ? "QSpinBox" : "QLineEdit"),
                 editor->metaObject()->className());
        QTRY_VERIFY(editor->hasFocus());
        QVERIFY(QMetaObject::invokeMethod(editor, "selectAll"));
        QTest::keyClicks(editor, step[1]);
        QCOMPARE(written, 0); // nothing is written while typing
        if (step[2] == "leave") {
            // A click on a name edits that row's value.
            QVERIFY(qobject_cast<QLineEdit *>(openEditor(browser, "above", 0)));
            QTRY_VERIFY(!editor);
        } else {
            QTest::keyClick(editor, step[2] == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
            QTest::qWait(1);
        }
        QCOMPARE(rowValue(browser, "p"), step[2] == "Escape" ? before : step[1]);
    }

    void editorsAndDialogs()
    {
        Pane pane;
        QtTreePropertyBrowser *browser = pane.browser.get();
        QtVariantProperty *number = pane.add(QMetaType::Int, "number", 5);
        QtVariantProperty *font = pane.add(QMetaType::QFont, "font");
        pane.add(QtVariantPropertyManager::enumTypeId(), "choice")
                ->setAttribute(QStringLiteral("enumNames"), QStringList({"Red", "Green"}));
        pane.show();

        // Attributes and the values they clamp reach an open editor.
        auto *spin = qobject_cast<QSpinBox *>(openEditor(browser, "number"));
        QVERIFY(spin);
        number->setAttribute(QStringLiteral("maximum"), 4);
        QCOMPARE(spin->maximum(), 4);
        QCOMPARE(spin->value(), 4);
        auto *combo = qobject_cast<QComboBox *>(openEditor(browser, "choice"));
        QVERIFY(combo);
        combo->setCurrentIndex(1);
        QCOMPARE(rowValue(browser, "choice"), QStringLiteral("Green"));

        // A sub-property editor changes the parent; a click anywhere in a check cell toggles.
        auto *bold = qobject_cast<QCheckBox *>(openEditor(browser, "Bold"));
        QVERIFY(bold);
        QTest::mouseClick(bold, Qt::LeftButton, {}, QPoint(bold->width() - 4, bold->height() / 2));
        QVERIFY(font->value().value<QFont>().bold());
        QCOMPARE(rowValue(browser, "Bold"), QStringLiteral("True"));

        // The dialog opens on the current value, and its font shows in the rows below; a
        // cancelled one changes nothing.
        for (const bool accept : {true, false}) {
            int shownSize = 0;
            QVERIFY(answerDialog<QFontDialog>(
                    browser, "font",
                    [&](QFontDialog *dialog) {
                        QFont chosen = dialog->currentFont();
                        shownSize = chosen.pointSize();
                        chosen.setPointSize(accept ? 31 : 45);
                        chosen.setUnderline(true);
                        dialog->setCurrentFont(chosen);
                    },
                    accept));
            QCOMPARE(rowValue(browser, "Point Size"), QStringLiteral("31"));
            QCOMPARE(rowValue(browser, "Underline"), QStringLiteral("True"));
            if (!accept)
                QCOMPARE(shownSize, 31);
        }
    }

    void splitterAndResizeMode()
    {
        Pane pane;
        QtTreePropertyBrowser *browser = pane.browser.get();
        pane.add(QMetaType::QString, "name", QStringLiteral("v"));
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
    }

    void deletionOrders_data()
    {
        QTest::addColumn<QString>("order"); // manager, factory, browser
        for (const char *order : {"mfb", "mbf", "fmb", "fbm", "bmf", "bfm"})
            QTest::newRow(order) << QString::fromLatin1(order);
    }

    void deletionOrders()
    {
        QFETCH(QString, order);
        Pane pane;
        QtVariantProperty *text = pane.add(QMetaType::QString, "text");
        pane.add(QMetaType::QFont, "font");
        pane.show();
        QPointer<QWidget> editor = openEditor(pane.browser.get(), "text");
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
            if (pane.manager) {
                text->setValue(order + gone);
                if (browser)
                    QCOMPARE(rowValue(browser, "text"), order + gone);
                if (browser && !pane.factory)
                    QVERIFY(!openEditor(browser, "text"));
            }
        }
    }
};

QTEST_MAIN(TestPropertyBrowser)
#include "tst_propertybrowser.moc"
