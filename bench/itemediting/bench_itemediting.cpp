// Times an item edit through our task menus (open the editor, rename one entry, OK), then Undo
// and Redo of all it pushed, against Designer's own "Edit Items..." on the Qt widget of the same
// shape, in one Designer core that loads the built module: a combo box of 10,000 entries
// against a QComboBox, a 99 x 99 matrix of push buttons against a QTableWidget. Prints the
// medians of several repetitions and their ratios.

#include "benchsupport.h"
#include "designertestcore.h"

#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerTaskMenuExtension>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QExtensionManager>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QUndoStack>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

namespace {

const int repetitions = 15;

// One side of a comparison: a form with the edited widget named "edited", the text of the
// entry that is renamed, and where that entry sits in the editor (a row of its list, or a
// cell of its table).
struct Side
{
    const char *label;
    bool ours;
    QString ui;
    QString (*entryText)(QWidget *edited);
    int row;
    int column;
};

struct Times
{
    QList<double> edit, undo, redo;
};

void check(bool ok, const Side &side, const char *what)
{
    if (ok)
        return;
    qWarning("bench_itemediting: %s: %s", side.label, what);
    std::exit(1);
}

const int comboEntries = 10000;
const int comboRow = 5000;
const int matrixSize = 99;
const int matrixCell = 50; // row and column

// A combo box of the given class with 10,000 entries in the .ui text.
QString comboForm(const char *className)
{
    QString items;
    for (int i = 0; i < comboEntries; ++i)
        items += QStringLiteral("<item><property name=\"text\"><string>Item %1</string></property>"
                                "</item>")
                         .arg(i);
    return CcTest::formXml(QStringLiteral("  <widget class=\"%1\" name=\"edited\">%2</widget>\n")
                                   .arg(QLatin1String(className), items));
}

QString cellText(int r, int c) { return QStringLiteral("%1,%2").arg(r).arg(c); }

// A 99 x 99 matrix of push buttons, every cell with a text.
QString matrixForm()
{
    QString xml = QStringLiteral("<property name=\"row\"><number>%1</number></property>"
                                 "<property name=\"column\"><number>%1</number></property>")
                          .arg(matrixSize);
    for (int r = 0; r < matrixSize; ++r) {
        for (int c = 0; c < matrixSize; ++c)
            xml += QStringLiteral("<item><property name=\"text\"><string>%1</string></property>"
                                  "</item>")
                           .arg(cellText(r, c));
    }
    return CcTest::formXml(
            QStringLiteral(
                    "  <widget class=\"VoCc::MatrixPushButtons\" name=\"edited\">%1</widget>\n")
                    .arg(xml));
}

// A 99 x 99 table widget with the same texts.
QString tableForm()
{
    QString xml;
    for (int i = 0; i < matrixSize; ++i)
        xml += QStringLiteral("<row/><column/>");
    for (int r = 0; r < matrixSize; ++r) {
        for (int c = 0; c < matrixSize; ++c)
            xml += QStringLiteral("<item row=\"%1\" column=\"%2\"><property name=\"text\">"
                                  "<string>%3</string></property></item>")
                           .arg(r)
                           .arg(c)
                           .arg(cellText(r, c));
    }
    return CcTest::formXml(
            QStringLiteral("  <widget class=\"QTableWidget\" name=\"edited\">%1</widget>\n")
                    .arg(xml));
}

QString comboEntry(QWidget *w)
{
    auto *combo = qobject_cast<QComboBox *>(w);
    return combo && combo->count() == comboEntries ? combo->itemText(comboRow) : QString();
}

QString matrixEntry(QWidget *w)
{
    auto *matrix = qobject_cast<VoCc::AbstractMatrixOptions *>(w);
    QAbstractButton *button =
            matrix ? matrix->button(matrixCell * matrixSize + matrixCell) : nullptr;
    return button ? button->text() : QString();
}

QString tableEntry(QWidget *w)
{
    auto *table = qobject_cast<QTableWidget *>(w);
    QTableWidgetItem *item = table ? table->item(matrixCell, matrixCell) : nullptr;
    return item ? item->text() : QString();
}

struct Answer
{
    std::function<void(QDialog *)> act;
    bool answered = false;
    bool pending = true;
};

// A zero timer queued before the action fires is the first thing the dialog's exec() loop
// handles: act works the dialog, then OK is pressed. Should the editor let events through
// before its dialog is up, the timer queues itself again.
void answerWhenShown(const std::shared_ptr<Answer> &answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        if (!answer->pending)
            return;
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return answerWhenShown(answer);
        answer->answered = true;
        answer->act(dialog);
        auto *buttons = dialog->findChild<QDialogButtonBox *>();
        if (QPushButton *ok = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr)
            ok->click();
        else
            dialog->accept();
    });
}

// Triggers the action and answers the modal dialog it opens; tells whether there was one.
bool triggerAnswering(QAction *action, const std::function<void(QDialog *)> &act)
{
    auto answer = std::make_shared<Answer>();
    answer->act = act;
    answerWhenShown(answer);
    action->trigger();
    answer->pending = false;
    return answer->answered;
}

QAction *editAction(const Side &side, QWidget *edited)
{
    QExtensionManager *manager = CcTest::designerCore()->extensionManager();
    if (side.ours) {
        auto *menu = qt_extension<QDesignerTaskMenuExtension *>(manager, edited);
        return menu ? menu->preferredEditAction() : nullptr;
    }
    auto *menu = qobject_cast<QDesignerTaskMenuExtension *>(
            manager->extension(edited, QStringLiteral("QDesignerInternalTaskMenuExtension")));
    const QList<QAction *> actions = menu ? menu->taskActions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->text() == QLatin1String("Edit Items..."))
            return action;
    }
    return nullptr;
}

// Renames the entry in the editor as a user's in-place edit ends: in the editor's table if it
// has one, else in its list.
void renameInEditor(const Side &side, QDialog *dialog, const QString &renamed)
{
    if (auto *table = dialog->findChild<QTableWidget *>(QStringLiteral("tableWidget"))) {
        QTableWidgetItem *item = table->item(side.row, side.column);
        check(item && table->rowCount() == matrixSize, side, "no table of all cells in the editor");
        table->setCurrentCell(side.row, side.column);
        item->setText(renamed);
        return;
    }
    auto *list = dialog->findChild<QListWidget *>(QStringLiteral("listWidget"));
    check(list && list->count() == comboEntries, side, "no list of all entries in the editor");
    list->setCurrentRow(side.row);
    list->item(side.row)->setText(renamed);
}

// One repetition on a fresh form: the edit entry, rename the entry in place, OK; Undo of all
// the edit pushed; Redo of it.
void measure(const Side &side, Times &times)
{
    QDesignerFormWindowInterface *form = CcTest::createFormWindow(side.ui);
    auto *edited = form->mainContainer()->findChild<QWidget *>(QStringLiteral("edited"));
    const QString original = edited ? side.entryText(edited) : QString();
    check(!original.isEmpty(), side, "the form has no widget with all entries");
    QAction *action = editAction(side, edited);
    check(action, side, "no edit entry in the widget's task menu");
    QUndoStack *history = form->commandHistory();
    const int before = history->index();
    const QString renamed = QStringLiteral("Renamed");
    QApplication::processEvents();

    bool answered = false;
    times.edit.append(Bench::timeIt([&] {
        answered = triggerAnswering(
                action, [&](QDialog *dialog) { renameInEditor(side, dialog, renamed); });
    }));
    check(answered, side, "the edit entry opened no dialog");
    const int after = history->index();
    check(after > before, side, "OK pushed nothing");
    check(side.entryText(edited) == renamed, side, "OK did not rename the entry");
    times.undo.append(Bench::timeIt([&] { history->setIndex(before); }));
    check(side.entryText(edited) == original, side, "Undo did not restore the entry");
    times.redo.append(Bench::timeIt([&] { history->setIndex(after); }));
    check(side.entryText(edited) == renamed, side, "Redo did not rename the entry again");

    CcTest::closeFormWindow(form);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Both sides in turn, alternating which goes first so neither always finds the other's
// leftovers; prints the medians and the ratios.
void compare(const char *title, const Side &designer, const Side &ours)
{
    Times designerTimes, ourTimes;
    for (int r = 0; r < repetitions; ++r) {
        if (r % 2)
            measure(designer, designerTimes);
        measure(ours, ourTimes);
        if (!(r % 2))
            measure(designer, designerTimes);
    }
    std::printf("%s, %d repetitions (medians, ms)\n", title, repetitions);
    const std::pair<const Side *, const Times *> sides[] = {{&designer, &designerTimes},
                                                            {&ours, &ourTimes}};
    for (const auto &side : sides) {
        std::printf("  %-24s edit + OK %8.2f\n", side.first->label,
                    Bench::median(side.second->edit));
        std::printf("  %-24s undo      %8.2f\n", side.first->label,
                    Bench::median(side.second->undo));
        std::printf("  %-24s redo      %8.2f\n", side.first->label,
                    Bench::median(side.second->redo));
    }
    const struct
    {
        const char *step;
        QList<double> Times::*times;
    } steps[] = {{"edit + OK", &Times::edit}, {"undo", &Times::undo}, {"redo", &Times::redo}};
    for (const auto &step : steps)
        std::printf("ratio %-9s ours / Designer's: %.2f (target <= 1.00)\n", step.step,
                    Bench::median(ourTimes.*step.times) / Bench::median(designerTimes.*step.times));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
    // The built-in task menus (the baseline's "Edit Items...") come with Designer's task menu
    // component, which the designer program creates next to its core.
    QDesignerComponents::createTaskMenu(CcTest::designerCore(), &app);

    compare("item editing, combo box of 10000 entries, entry 5000 renamed",
            {"Designer's QComboBox", false, comboForm("QComboBox"), comboEntry, comboRow, 0},
            {"VoCc::ComboBox", true, comboForm("VoCc::ComboBox"), comboEntry, comboRow, 0});
    compare("matrix editing, 99 x 99 push buttons, cell (50, 50) renamed",
            {"Designer's QTableWidget", false, tableForm(), tableEntry, matrixCell, matrixCell},
            {"VoCc::MatrixPushButtons", true, matrixForm(), matrixEntry, matrixCell, matrixCell});
    return 0;
}
