// Item editing as a form author does it: the built module in a real Designer core, the
// context-menu entries opening the editors, the dialogs driven through their widgets and the
// commands on the form's real undo stack. Hand-written edits of the ten families check what
// each editor shows and what an edit saves; randomized sessions check the form's promises.
//
// A random session is a seeded series of steps (an editor opened on the widget, one to eight
// actions in it, OK or Cancel; Undo and Redo; saving and loading into a fresh form window).
// After every step undoing everything must give the text the session started from, redoing
// everything the text after the last edit, saving what was loaded the same text; the widget
// must show what the text says, no editor may be left alive and nothing may warn. A failing
// session is shrunk to the steps that still fail and printed with its seed. What went wrong is
// a session's value (the driver keeps its failures), never QtTest's state, so that shrinking
// keeps only the sessions that fail themselves.
// CC_RANDOM_SESSIONS (default 300) sets how many sessions run, CC_RANDOM_SEED (default 1) the
// seed of the first; session i uses seed + i. They run as data rows of 10 sessions each.

#include "itemdialogdriver.h"
#include "pagegroup.h"
#include "testpictures.h"
#include "uixml.h"
#include "warninglog.h"

#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QExtensionFactory>
#include <QtDesigner>

using namespace CcTest;
using Driver = ItemDialogDriver;

namespace {

QString testIcon;

// What each widget shows of its entries.
QStringList comboTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}
QStringList shownByComboBox(QWidget *w) { return comboTexts(qobject_cast<QComboBox *>(w)); }
// An option or checkable combo box: the one combo box it holds.
QStringList shownByInnerCombo(QWidget *w) { return comboTexts(w->findChild<QComboBox *>()); }
template<class Widget>
QStringList shownByButtons(QWidget *w)
{
    auto *widget = qobject_cast<Widget *>(w);
    QStringList texts;
    for (int i = 0; widget && widget->button(i); ++i)
        texts.append(widget->button(i)->text());
    return texts;
}
// A matrix: its dimensions, then its buttons' texts row by row.
template<class Matrix>
QStringList shownByMatrix(QWidget *w)
{
    auto *matrix = qobject_cast<Matrix *>(w);
    return QStringList(QStringLiteral("%1x%2").arg(matrix->row()).arg(matrix->column()))
            + shownByButtons<Matrix>(w);
}
QStringList shownByPageGroup(QWidget *w)
{
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(w);
    QStringList titles;
    for (int i = 0; i < group->count(); ++i)
        titles.append(group->box(i)->title());
    return titles;
}

QString untranslated(const char *name, const char *value)
{
    return propertyXml(name, value, "string", true);
}
QString textItem(const char *text, const QString &extras = QString())
{
    return itemXml(propertyXml("text", text) + extras);
}

// Entries A, B and C; B carries the extra values its widget keeps.
QString entries(const QString &extraOfB)
{
    return textItem("A") + textItem("B", extraOfB) + textItem("C");
}
const QString optionExtras = propertyXml("toolTip", "tipB") + untranslated("data", "dB");
const QString pages = widgetXml("QWidget", "pageA", propertyXml("windowTitle", "A"))
        + widgetXml("QWidget", "pageB", propertyXml("windowTitle", "B"))
        + widgetXml("QWidget", "pageC", propertyXml("windowTitle", "C"));
// A 2 x 3 matrix a..e and an empty cell; a has an icon, a tool tip and an action.
const QString firstCellExtras =
        untranslated("icon",
                     ":/qt-project.org/styles/commonstyle/images/standardbutton-open-16.png")
        + propertyXml("toolTip", "tipa") + untranslated("action", "acta");
const QString dimensions = propertyXml("row", "2", "number") + propertyXml("column", "3", "number");
const QString matrixEntries = dimensions + textItem("a", firstCellExtras) + textItem("b")
        + textItem("c") + textItem("d") + textItem("e");
const QString popEntries = dimensions
        + QStringLiteral("<property name=\"textList\"><stringlist><string>a</string>"
                         "<string>b</string><string>c</string><string>d</string>"
                         "<string>e</string><string></string></stringlist></property>")
        + itemXml(firstCellExtras);

// What a user does in an editor: looks at it as it opens and makes a change (then Cancel),
// makes a change and takes it back (then OK), and edits for real (then OK).
void listOpened(Driver &dialog)
{
    QCOMPARE(dialog.rows(), QStringList({"A", "B", "C"}));
    dialog.play("nCancelled");
}
void listChangedBack(Driver &dialog) { dialog.play("s1 ptext=Bx ptext=B"); }
// A new entry with every value the editor offers, a deletion, a move; the last entry deleted,
// which leaves the one above current, renamed through the pane.
void listEdit(Driver &dialog)
{
    dialog.play("s1 nAddd rAdded");
    for (const QString &property : dialog.propertyNames()) {
        if (property == QLatin1String("icon"))
            dialog.chooseIconFile(property, testIcon);
        else if (property != QLatin1String("text"))
            dialog.typeProperty(property, property + QStringLiteral("Added"));
    }
    dialog.play("s0 d s1 u s2 d ptext=Bee");
    QCOMPARE(dialog.rows(), QStringList({"Added", "Bee"}));
}

void matrixOpened(Driver &dialog)
{
    // Both matrix dialogs are one form: its name, one tab, spin boxes from 1 to 99.
    QCOMPARE(dialog.dialog()->objectName(), QStringLiteral("MatrixPushButtonsEditor"));
    auto *tabs = dialog.child<QTabWidget>("tabWidget");
    QVERIFY(tabs);
    QCOMPARE(tabs->count(), 1);
    QCOMPARE(tabs->tabText(0), QLatin1String("Items"));
    auto *rows = dialog.child<QSpinBox>("rowCounts");
    auto *columns = dialog.child<QSpinBox>("colCounts");
    QVERIFY(rows);
    QVERIFY(columns);
    QCOMPARE(rows->minimum(), 1);
    QCOMPARE(columns->maximum(), 99);
    QCOMPARE(rows->value(), 2);
    QCOMPARE(columns->value(), 3);
    QCOMPARE(dialog.rows(), QStringList({"a", "b", "c", "d", "e", ""}));
    // The first cell is current.
    QCOMPARE(dialog.propertyValue(QStringLiteral("text")), QStringLiteral("a"));
    QCOMPARE(dialog.propertyValue(QStringLiteral("toolTip")), QStringLiteral("tipa"));
    QCOMPARE(dialog.propertyValue(QStringLiteral("action")), QStringLiteral("acta"));
    dialog.play("R3");
}
void matrixChangedBack(Driver &dialog) { dialog.play("c0,1 ptext=bx ptext=b"); }
// A row more and a column less, a cell typed in place, values on a cell that had no item.
void matrixEdit(Driver &dialog)
{
    // No cell is current after a change of size; the pane shows defaults.
    dialog.play("R3");
    QCOMPARE(dialog.table()->currentRow(), -1);
    dialog.play("C2");
    QCOMPARE(dialog.table()->currentRow(), -1);
    QCOMPARE(dialog.propertyValue(QStringLiteral("text")), QString());
    dialog.play("c2,0 rg");
    QCOMPARE(dialog.propertyValue(QStringLiteral("text")), QStringLiteral("g"));
    dialog.play("ptoolTip=tipg c2,1 paction=acth");
    QCOMPARE(dialog.rows(), QStringList({"a", "b", "d", "e", "g", ""}));
}

// The ten widget families with item editors: each with its entries in a form and what its
// widget shows of them, its editor, and an edit's results.
struct Family
{
    // The class, its context-menu entry and the title of its editor.
    const char *className, *entry, *title;
    QStringList properties;
    const char *command;
    QStringList (*shown)(QWidget *);
    QString entriesXml;
    bool list; // a list of entries, or else a matrix of cells
    // Shown before and after the edit, and after undoing only the edit's change command.
    QStringList opened, edited, changeUndone;
    // Values the edit set that the saved form holds ("@icon" stands for the test icon), and
    // those it does not.
    QStringList saved, notSaved;
};

const QStringList abc = {"A", "B", "C"};
const QStringList addedBee = {"Added", "Bee"};
const QStringList grid = {"2x3", "a", "b", "c", "d", "e", ""};
const QStringList editedGrid = {"3x2", "a", "b", "d", "e", "g", ""};
const QStringList gridIn3x2 = {"3x2", "a", "b", "c", "d", "e", ""};
const QStringList matrixSaved = {">g<", "tipg", "acth", ">b<", "tipa"};
const QStringList optionSaved = {"@icon", "tooltipAdded", "dataAdded", "tipB", "dB"};

// clang-format off
const Family families[] = {
    {"VoCc::ComboBox", "Edit Items", "Edit ComboBox", {"text", "icon", "action"}, "", shownByComboBox,
     entries(untranslated("action", "actB")), true, abc, addedBee, abc, {"@icon", "actionAdded", "actB"}, {}},
    {"VoCc::CheckableTextComboBox", "Edit Items", "Edit Checkable ComboBox", {"text", "toolTip"}, "", shownByInnerCombo,
     entries(propertyXml("toolTip", "tipB")), true, abc, addedBee, abc, {"toolTipAdded", "tipB"}, {}},
    {"VoCc::OptionComboBox", "Edit Items", "Edit Option ComboBox", {"text", "icon", "data"}, "", shownByInnerCombo,
     entries(untranslated("data", "dB")), true, abc, addedBee, abc, {"@icon", "dataAdded", "dB"}, {}},
    {"VoCc::OptionButtons", "Edit Buttons", "Edit OptionButtons", {"text", "icon", "tooltip", "data"}, "Change OptionButtons Contents", shownByButtons<VoCc::OptionButtons>,
     entries(optionExtras), true, abc, addedBee, abc, optionSaved, {}},
    {"VoCc::OptionRadios", "Edit Buttons", "Edit OptionRadios", {"text", "icon", "tooltip", "data"}, "Change OptionRadios Contents", shownByButtons<VoCc::OptionRadios>,
     entries(optionExtras), true, abc, addedBee, abc, optionSaved, {}},
    {"VoCc::DrawbackBoxGroup", "Edit DrawbackBox", "Edit DrawbackBoxGroup", {"text", "tooltip", "data"}, "Change OptionRadios Contents", shownByPageGroup,
     pages, true, abc, addedBee, abc, {}, {"tooltipAdded", "dataAdded"}},
    {"VoCc::MatrixPushButtons", "Edit Buttons", "Edit Matrix buttons", {"text", "icon", "toolTip", "action"}, "Change MatrixButtons Contents", shownByMatrix<VoCc::AbstractMatrixOptions>,
     matrixEntries, false, grid, editedGrid, gridIn3x2, matrixSaved, {}},
    {"VoCc::MatrixRadioButtons", "Edit Buttons", "Edit Matrix buttons", {"text", "icon", "toolTip", "action"}, "Change MatrixButtons Contents", shownByMatrix<VoCc::AbstractMatrixOptions>,
     matrixEntries, false, grid, editedGrid, gridIn3x2, matrixSaved, {}},
    {"VoCc::MatrixCheckBoxes", "Edit Buttons", "Edit Matrix buttons", {"text", "icon", "toolTip", "action"}, "Change MatrixButtons Contents", shownByMatrix<VoCc::AbstractMatrixOptions>,
     matrixEntries, false, grid, editedGrid, gridIn3x2, matrixSaved, {}},
    {"VoCc::MatrixPopButtons", "Edit Buttons", "Edit Matrix PopButtons", {"text", "icon", "toolTip", "action"}, "Change MatrixPopButtons Contents", shownByMatrix<VoCc::MatrixPopButtons>,
     popEntries, false, grid, editedGrid, grid, matrixSaved, {}},
};
// clang-format on
const int familyCount = int(std::size(families));

// A form holding one widget of the family, named "edited", with the entries given or its own.
QString familyForm(const Family &family, const QString &entries)
{
    return formXml(widgetXml(family.className, "edited", entries), pageGroupDeclaration());
}
QString familyForm(const Family &family) { return familyForm(family, family.entriesXml); }

// The form as another form window loads and saves it.
QString reloaded(const QString &ui)
{
    QDesignerFormWindowInterface *form = createFormWindow(ui);
    const QString saved = form->contents();
    closeFormWindow(form);
    return saved;
}

// A page group's pages; no pages for the other widgets.
QWidgetList pagesOfWidget(QWidget *widget)
{
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(widget);
    return group ? pagesOf(group) : QWidgetList();
}

// The form as Undo must give it back: the page group is left on its last page by every
// change, so its current index is blotted out.
QString comparable(const Family &family, QString ui)
{
    static const QRegularExpression current(
            QStringLiteral("(<property name=\"currentIndex\">\\s*<number>)\\d+(</number>)"));
    return family.shown == shownByPageGroup ? ui.replace(current, QStringLiteral("\\1#\\2")) : ui;
}

// What the edited widget shows when the run-time loader builds the form, without Designer.
QStringList shownAtRunTime(const Family &family, const QString &ui)
{
    QBuffer buffer;
    buffer.setData(ui.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    QScopedPointer<QWidget> form(VoCc::FormBuilder().load(&buffer));
    QWidget *widget = form ? form->findChild<QWidget *>(QStringLiteral("edited")) : nullptr;
    return widget ? family.shown(widget) : QStringList({"<not loaded>"});
}

// Random sessions: steps and the actions in an editor are letters, as describe() spells them.
struct Action
{
    char act;
    int a, b;
    QString text;
};
struct Step
{
    char kind;
    int count; // undo or redo steps
    bool accept;
    QVector<Action> actions;
};
struct Session
{
    quint32 seed;
    int family;
    QVector<Step> steps;
};

QString describe(const Session &session)
{
    QString text = QString::asprintf("seed %u, %s (steps E edit, U undo, R redo, L save and load; "
                                     "actions s select, n new, d delete, u up, D down, r rename, "
                                     "p property, i icon, R rows, C columns, c cell):",
                                     session.seed, families[session.family].className);
    for (const Step &step : session.steps) {
        text += QString::asprintf("\n  %c x%d", step.kind, step.count);
        for (const Action &action : step.actions)
            text += QString::asprintf(" %c(%d,%d,%s)", action.act, action.a, action.b,
                                      qUtf8Printable(action.text));
        if (!step.accept)
            text += QStringLiteral(" Cancel");
    }
    return text;
}

// Texts a form author might type, XML's special characters and non-ASCII letters among them.
const char *const words[] = {"x", "Zwölf", "a&b", "<tag>", "\"q\"", "two words", "y'z", "Ende"};

Session generate(quint32 seed)
{
    QRandomGenerator random(seed);
    Session session {seed, int(random.bounded(familyCount)), {}};
    // Weighted choices of what a user does in the editor.
    const QByteArray acts = families[session.family].list ? "sssnnndduDrrppp" : "RRCCcccrrppp";
    const int steps = 1 + int(random.bounded(5));
    for (int s = 0; s < steps; ++s) {
        const int kind = int(random.bounded(20));
        if (kind < 6) {
            const char stepKind = "UUURRL"[kind];
            session.steps.append(
                    {stepKind, stepKind == 'L' ? 0 : 1 + int(random.bounded(3)), true, {}});
            continue;
        }
        Step step {'E', 0, random.bounded(5) != 0, {}};
        const int actions = 1 + int(random.bounded(8));
        for (int i = 0; i < actions; ++i) {
            char act = acts.at(random.bounded(acts.size()));
            if (random.bounded(40) == 0)
                act = 'i'; // rare: the file dialog is slow
            step.actions.append({act, int(random.bounded(100)), int(random.bounded(100)),
                                 QString::fromUtf8(words[random.bounded(int(std::size(words)))])
                                         + QString::number(random.bounded(10))});
        }
        session.steps.append(step);
    }
    return session;
}

// A fault put in by a test, to see how a failing session is shrunk: when it answers true for
// an action, the driver is told that the action failed.
bool (*injectedFault)(const Driver &, const Action &) = nullptr;

// One action as the dialog is now; one that needs what is not there (a row to select in an
// empty list, a current item to rename) is passed over, as a user could not do it either.
void act(Driver &dialog, const Family &family, const Action &action)
{
    if (injectedFault && injectedFault(dialog, action))
        return dialog.fail(QStringLiteral("injected fault"));
    const QAbstractItemModel *model = dialog.view()->model();
    const int rows = model->rowCount(), columns = model->columnCount();
    const bool pane = !dialog.propertyNames().isEmpty();
    const QStringList strings = family.properties.filter(QRegularExpression("^(?!icon$)"));
    if (action.act == 's' && rows > 0)
        dialog.select(action.a % rows);
    else if (action.act == 'n')
        dialog.addRow(action.text);
    else if (action.act == 'd' || action.act == 'u' || action.act == 'D')
        dialog.play(QString(QLatin1Char(action.act)));
    else if (action.act == 'r' && dialog.view()->currentIndex().isValid())
        dialog.renameCurrent(action.text);
    else if (action.act == 'p' && pane)
        dialog.typeProperty(strings.at(action.a % strings.size()), action.text);
    else if (action.act == 'i' && pane && family.properties.contains(QStringLiteral("icon")))
        dialog.chooseIconFile(QStringLiteral("icon"), testIcon);
    else if (action.act == 'R' || action.act == 'C')
        dialog.play(QLatin1Char(action.act) + QString::number(1 + action.a % 5));
    else if (action.act == 'c' && rows > 0 && columns > 0)
        dialog.select(action.a % rows, action.b % columns);
}

// The first promise a form breaks after a step, or an empty text.
QString brokenPromise(QDesignerFormWindowInterface *form, const Family &family,
                      const QString &start, const QString &lastEdit)
{
    const QString now = form->contents();
    const QStringList shown = family.shown(formChild(form, "edited"));
    const QStringList said = shownAtRunTime(family, now);
    if (shown != said)
        return QStringLiteral("the widget shows %1, its form says %2")
                .arg(shown.join(QLatin1Char('|')), said.join(QLatin1Char('|')));
    const QString saved = reloaded(now);
    if (saved != now)
        return QStringLiteral("loading and saving the form changes it:\n%1\n---\n%2")
                .arg(now, saved);
    QUndoStack *history = form->commandHistory();
    const int index = history->index();
    history->setIndex(0);
    const QString undone = form->contents();
    history->setIndex(history->count());
    const QString redone = form->contents();
    history->setIndex(index);
    if (comparable(family, undone) != comparable(family, start))
        return QStringLiteral("undoing everything gives\n%1\n---instead of\n%2").arg(undone, start);
    if (comparable(family, redone) != comparable(family, lastEdit))
        return QStringLiteral("redoing everything gives\n%1\n---instead of\n%2")
                .arg(redone, lastEdit);
    if (comparable(family, form->contents()) != comparable(family, now))
        return QStringLiteral("undoing and redoing to the same place changes the form");
    return QString();
}

QString runSession(const Session &session)
{
    const Family &family = families[session.family];
    QDesignerFormWindowInterface *form = createFormWindow(familyForm(family));
    QString start = form->contents(), lastEdit = start;
    settle();
    const int dialogs = dialogCount();
    QString broken;
    for (int i = 0; i < session.steps.size() && broken.isEmpty(); ++i) {
        const Step &step = session.steps.at(i);
        QUndoStack *history = form->commandHistory();
        const int before = history->index();
        const WarningLog log;
        if (step.kind == 'U' || step.kind == 'R')
            history->setIndex(qBound(0, before + (step.kind == 'U' ? -step.count : step.count),
                                     history->count()));
        if (step.kind == 'L') {
            const QString ui = form->contents();
            closeFormWindow(form);
            form = createFormWindow(ui);
            start = lastEdit = form->contents();
        }
        if (step.kind == 'E') {
            const auto actions = [&](Driver &dialog) {
                for (const Action &action : step.actions)
                    act(dialog, family, action);
            };
            broken = edit(formChild(form, "edited"), actions, step.accept);
            if (history->index() != before)
                lastEdit = form->contents();
        }
        settle();
        if (broken.isEmpty())
            broken = brokenPromise(form, family, start, lastEdit);
        if (broken.isEmpty() && !log.warnings.isEmpty())
            broken = QStringLiteral("warned: ") + log.warnings.join(QStringLiteral(" | "));
        if (broken.isEmpty() && dialogCount() != dialogs)
            broken = QStringLiteral("an editor outlived its edit");
        if (!broken.isEmpty())
            broken = QStringLiteral("after step %1: %2").arg(i + 1).arg(broken);
    }
    closeFormWindow(form);
    return broken;
}

// The smallest session found by leaving out steps, then actions, that still fails.
Session shrink(Session session)
{
    for (int i = session.steps.size() - 1; i >= 0; --i) {
        Session smaller = session;
        smaller.steps.remove(i);
        if (!runSession(smaller).isEmpty())
            session = smaller;
    }
    for (int s = 0; s < session.steps.size(); ++s) {
        for (int i = session.steps.at(s).actions.size() - 1; i >= 0; --i) {
            Session smaller = session;
            smaller.steps[s].actions.remove(i);
            if (!runSession(smaller).isEmpty())
                session = smaller;
        }
    }
    return session;
}

} // namespace

class TestItemEditing : public QObject
{
    Q_OBJECT
    TestPictures m_pictures;

private slots:
    void initTestCase()
    {
        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(designerCore());
        testIcon = m_pictures.red;
        QVERIFY(!testIcon.isEmpty());
    }

    void editingThroughTheContextMenu_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < familyCount; ++i)
            QTest::newRow(families[i].className) << i;
    }

    void editingThroughTheContextMenu()
    {
        QFETCH(int, index);
        const Family &family = families[index];
        QDesignerFormWindowInterface *form = createFormWindow(familyForm(family));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        QWidget *widget = formChild(form, "edited");
        QVERIFY(widget);
        QCOMPARE(family.shown(widget), family.opened);
        QUndoStack *history = form->commandHistory();
        form->setDirty(false);
        const QString original = form->contents();
        const QWidgetList originalPages = pagesOfWidget(widget);

        // The editor opens on the widget's entries; Cancel after a change and OK without one
        // leave the form alone.
        const auto opened = [&](Driver &dialog) {
            QCOMPARE(dialog.dialog()->windowTitle(), QLatin1String(family.title));
            QCOMPARE(dialog.propertyNames(), family.properties);
            family.list ? listOpened(dialog) : matrixOpened(dialog);
        };
        QCOMPARE(edit(widget, opened, false), QString());
        QCOMPARE(edit(widget, family.list ? listChangedBack : matrixChangedBack), QString());
        QCOMPARE(history->count(), 0);
        QVERIFY(!form->isDirty());
        QCOMPARE(form->contents(), original);

        QCOMPARE(edit(widget, family.list ? listEdit : matrixEdit), QString());
        // One step: a button matrix's counts go with its change.
        QCOMPARE(history->count(), 1);
        QCOMPARE(history->text(0), QLatin1String(family.command));
        QVERIFY(form->isDirty());
        QCOMPARE(family.shown(widget), family.edited);
        const QWidgetList editedPages = pagesOfWidget(widget);

        // The saved form holds the values set. Designer writes icon paths relative to where
        // the form would be saved.
        const QString after = form->contents();
        const QFileInfo icon(testIcon);
        const QString iconPath = icon.dir().dirName() + QLatin1Char('/') + icon.fileName();
        for (QString value : family.saved)
            QVERIFY2(after.contains(value.replace(QLatin1String("@icon"), iconPath)),
                     qPrintable(value));
        for (const QString &value : family.notSaved)
            QVERIFY2(!after.contains(value), qPrintable(value));
        // Loaded again it is saved the same, loaded at run time it shows the same entries; Undo
        // gives back the form as it was, Redo the edited one, and a page group gets back the same
        // page objects, in their order.
        QCOMPARE(brokenPromise(form, family, original, after), QString());
        history->setIndex(0);
        QCOMPARE(family.shown(widget), family.opened);
        QCOMPARE(pagesOfWidget(widget), originalPages);
        history->setIndex(history->count());
        QCOMPARE(form->contents(), after);
        QCOMPARE(pagesOfWidget(widget), editedPages);

        // The change command alone: a button matrix keeps its new counts.
        const QUndoCommand *step = history->command(0);
        auto *change = const_cast<QUndoCommand *>(step->childCount() ? step->child(0) : step);
        change->undo();
        QCOMPARE(family.shown(widget), family.changeUndone);
        change->redo();
        QCOMPARE(form->contents(), after);
    }

    void emptyWidgetsAndDeletingEverything_data() { editingThroughTheContextMenu_data(); }

    // A widget without entries opens an empty editor (blank cells for a matrix); an entry added
    // and deleted again leaves the form as it was, to the byte.
    void emptyWidgetsAndDeletingEverything()
    {
        QFETCH(int, index);
        const Family &family = families[index];
        QDesignerFormWindowInterface *form = createFormWindow(familyForm(family, QString()));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        QWidget *widget = formChild(form, "edited");
        QVERIFY(widget);
        const QString empty = form->contents();
        const QStringList blank = family.shown(widget);
        QCOMPARE(blank.mid(1).join(QString()), QString());
        const auto addOne = [&](Driver &dialog) {
            QCOMPARE(dialog.rows(), family.list ? QStringList() : blank.mid(1));
            dialog.play(family.list ? "nOnly" : "c0,0 rOnly");
        };
        QCOMPARE(edit(widget, addOne), QString());
        QCOMPARE(family.shown(widget),
                 family.list ? QStringList({"Only"})
                             : blank.mid(0, 1) + QStringList({"Only"}) + blank.mid(2));
        const QString withOne = form->contents();
        const auto deleteIt = [&family](Driver &dialog) {
            dialog.play(family.list ? "s0 d" : "c0,0 r");
        };
        QCOMPARE(edit(widget, deleteIt), QString());
        QCOMPARE(family.shown(widget), blank);
        QCOMPARE(comparable(family, form->contents()), comparable(family, empty));
        QUndoStack *history = form->commandHistory();
        history->setIndex(1);
        QCOMPARE(form->contents(), withOne);
        history->setIndex(0);
        QCOMPARE(comparable(family, form->contents()), comparable(family, empty));
    }

    // Deleting every entry of an option combo box saves it with no items at all: none left
    // empty by the lists it keeps besides its texts.
    void emptiedOptionComboBoxSavesNoItems()
    {
        const Family &family = families[2];
        QCOMPARE(family.className, "VoCc::OptionComboBox");
        QDesignerFormWindowInterface *form = createFormWindow(familyForm(family));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        QWidget *widget = formChild(form, "edited");
        QCOMPARE(edit(widget,
                      [](Driver &dialog) {
                          while (dialog.ok() && dialog.list()->count())
                              dialog.play("s0 d");
                      }),
                 QString());
        QCOMPARE(family.shown(widget), QStringList());
        const QString saved = form->contents();
        QVERIFY2(!saved.contains(QLatin1String("<item")), qPrintable(saved));
        QCOMPARE(saved, reloaded(familyForm(family, QString())));
    }

    void trailingBlankCellsUndoToTheByte_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < familyCount; ++i) {
            if (!families[i].list)
                QTest::newRow(families[i].className) << i;
        }
    }

    // A 3 x 3 matrix with texts in its first two cells: one cell's tool tip set through the
    // editor (which fills every list to the cell count) is undone to the very bytes the form
    // had, and the edited form holds no item for the blank cells after the last one used.
    void trailingBlankCellsUndoToTheByte()
    {
        QFETCH(int, index);
        const Family &family = families[index];
        const QString dimensions =
                propertyXml("row", "3", "number") + propertyXml("column", "3", "number");
        const QString cells = family.shown == shownByMatrix<VoCc::MatrixPopButtons>
                ? QStringLiteral("<property name=\"textList\"><stringlist><string>a</string>"
                                 "<string>b</string></stringlist></property>")
                : textItem("a") + textItem("b");
        QDesignerFormWindowInterface *form =
                createFormWindow(familyForm(family, dimensions + cells));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        const QString original = form->contents();
        QCOMPARE(edit(formChild(form, "edited"),
                      [](Driver &dialog) { dialog.play("c0,1 ptoolTip=tipb"); }),
                 QString());
        const QString edited = form->contents();
        QCOMPARE(brokenPromise(form, family, original, edited), QString());
        QVERIFY2(edited.contains(QLatin1String("tipb")), qPrintable(edited));
        QCOMPARE(edited.count(QLatin1String("<item")), 2);
    }

    void translationMarks_data() { editingThroughTheContextMenu_data(); }

    // How an entry's text and tool tip are marked for translation is set in the pane, saved
    // with the form, undone to the byte, and shown again in the editor of the form reopened.
    void translationMarks()
    {
        QFETCH(int, index);
        const Family &family = families[index];
        // The page group's editor offers a tool tip but keeps titles only.
        const QString tip = family.shown == shownByPageGroup
                ? QString()
                : family.properties.filter(QRegularExpression(QStringLiteral("^tool[tT]ip$")))
                          .value(0);
        // In a matrix the text of a cell below the first row, the tool tip of the first cell:
        // marks must land on their own cells.
        const QString pick = QLatin1String(family.list ? "s1 " : "c1,0 ");
        const QString pickTip = QLatin1String(family.list ? "" : "c0,0 ");
        QDesignerFormWindowInterface *form = createFormWindow(familyForm(family));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        const QString original = form->contents();
        // Renamed in place after being marked: the marks stay.
        const QString marks = pick
                + QStringLiteral("ptext/disambiguation=menu ptext/comment=note rNew")
                + (tip.isEmpty() ? QString()
                                 : QStringLiteral(" %1t%2/translatable").arg(pickTip, tip));
        QCOMPARE(edit(formChild(form, "edited"), [&marks](Driver &dialog) { dialog.play(marks); }),
                 QString());
        const QString marked = form->contents();
        QVERIFY2(
                marked.contains(QStringLiteral("comment=\"menu\" extracomment=\"note\">%1</string>")
                                        .arg(QLatin1String("New"))),
                qPrintable(marked));
        if (!tip.isEmpty())
            QVERIFY2(marked.contains(QStringLiteral("notr=\"true\">%1</string>")
                                             .arg(family.list ? "tipB" : "tipa")),
                     qPrintable(marked));
        QCOMPARE(brokenPromise(form, family, original, marked), QString());

        QDesignerFormWindowInterface *reopened = createFormWindow(marked);
        const auto closeReopened = qScopeGuard([reopened] { closeFormWindow(reopened); });
        const auto shown = [&](Driver &dialog) {
            dialog.play(pick);
            QCOMPARE(dialog.propertyValue(QStringLiteral("text/disambiguation")),
                     QStringLiteral("menu"));
            QCOMPARE(dialog.propertyValue(QStringLiteral("text/comment")), QStringLiteral("note"));
            dialog.play(pickTip);
            if (!tip.isEmpty())
                QCOMPARE(dialog.propertyValue(tip + QStringLiteral("/translatable")),
                         QStringLiteral("False"));
        };
        QCOMPARE(edit(formChild(reopened, "edited"), shown, false), QString());
    }

    // Each family's context menu: one entry, from its own factory, serving task menus of
    // its class only; on no form window the entry opens nothing.
    void entriesAndFactories()
    {
        QWidget standalone;
        for (const Family &family : families) {
            QScopedPointer<QWidget> widget(VoCc::FormBuilder::createCommonControl(
                    QLatin1String(family.className), &standalone));
            QDesignerTaskMenuExtension *menu = taskMenuOf(widget.data());
            QVERIFY2(menu, family.className);
            const QMetaObject *meta = dynamic_cast<QObject *>(menu)->metaObject();
            QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
            QCOMPARE(menu->taskActions(), QList<QAction *>({menu->preferredEditAction()}));
            QCOMPARE(menu->preferredEditAction()->text(), QLatin1String(family.entry));
            auto *factory =
                    qobject_cast<QExtensionFactory *>(dynamic_cast<QObject *>(menu)->parent());
            QVERIFY(factory);
            QVERIFY(!factory->extension(widget.data(), Q_TYPEID(QDesignerContainerExtension)));
            QVERIFY(!factory->extension(&standalone, Q_TYPEID(QDesignerTaskMenuExtension)));
            QCOMPARE(edit(widget.data(), [](Driver &) {}), QStringLiteral("no editor came up"));
        }
    }

    // A dialog without what the driver works is a failure that says what was looked for.
    void driverSaysWhatItMisses()
    {
        QAction entry(nullptr);
        connect(&entry, &QAction::triggered, [] { QDialog().exec(); });
        bool acted = false;
        QCOMPARE(editThrough(&entry, [&acted](Driver &) { acted = true; }),
                 QStringLiteral("no QListWidget \"listWidget\" or QTableWidget \"tableWidget\"; "
                                "no property pane (a QTreeWidget)"));
        QVERIFY(!acted);
    }

    // A session that fails only once a list holds six rows and one of them is renamed: it is
    // shrunk to the two edits that make the rows and rename, every other step and action left
    // out, and what is left still fails (a failure inside the driver must not leave every
    // later candidate failing too).
    void shrinkingKeepsWhatFails()
    {
        const auto faulty = [](const Driver &dialog, const Action &action) {
            return action.act == 'r' && dialog.list()->count() >= 6;
        };
        injectedFault = faulty;
        const auto restore = qScopeGuard([] { injectedFault = nullptr; });
        const auto editStep = [](QVector<Action> actions) { return Step {'E', 0, true, actions}; };
        const Action n {'n', 0, 0, QStringLiteral("new")}, s {'s', 1, 0, {}},
                r {'r', 0, 0, QStringLiteral("renamed")}, d {'d', 0, 0, {}};
        const Session session {
                0, 3, {editStep({n, s, n}), {'R', 1, true, {}}, editStep({n, r, d})}};
        QVERIFY(runSession(session).contains(QLatin1String("after step 3: injected fault")));
        const Session small = shrink(session);
        QCOMPARE(describe(small), describe({0, 3, {editStep({n, n}), editStep({n, r})}}));
        QCOMPARE(runSession(small), QStringLiteral("after step 2: injected fault"));
    }

    void randomSessions_data()
    {
        QTest::addColumn<quint32>("first");
        QTest::addColumn<int>("count");
        const int sessions = qEnvironmentVariable("CC_RANDOM_SESSIONS", "300").toInt();
        const quint32 seed = qEnvironmentVariable("CC_RANDOM_SEED", "1").toUInt();
        const int perRow = 10;
        for (int i = 0; i < sessions; i += perRow) {
            const int count = qMin(perRow, sessions - i);
            QTest::addRow("seeds %u-%u", seed + quint32(i), seed + quint32(i + count - 1))
                    << seed + quint32(i) << count;
        }
    }

    void randomSessions()
    {
        QFETCH(quint32, first);
        QFETCH(int, count);
        for (int i = 0; i < count; ++i) {
            const Session session = generate(first + quint32(i));
            const QString broken = runSession(session);
            if (!broken.isEmpty()) {
                const Session small = shrink(session);
                QFAIL(qPrintable(QStringLiteral("%1\nshrunk to %2\n%3")
                                         .arg(broken, describe(small), runSession(small))));
            }
        }
    }
};

QTEST_MAIN(TestItemEditing)
#include "tst_itemediting.moc"
