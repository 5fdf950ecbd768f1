// Times "Edit Items" on one of our combo boxes with 10,000 entries (open the editor, rename one
// entry, OK), then Undo and Redo of that change, against Designer's own "Edit Items..." on a
// QComboBox with the same entries, in one Designer core that loads the built module. Prints the
// medians of several repetitions and their ratios.

#include "benchsupport.h"
#include "designertestcore.h"

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
#include <QTimer>
#include <QUndoStack>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

namespace {

const int itemCount = 10000;
const int editedRow = 5000;
const int repetitions = 15;

struct Side
{
    const char *label;
    bool ours;
    QString ui;
    QList<double> edit, undo, redo;
};

void check(bool ok, const Side &side, const char *what)
{
    if (ok)
        return;
    qWarning("bench_itemediting: %s: %s", side.label, what);
    std::exit(1);
}

// A form holding a combo box named "combo" of the given class, its entries in the .ui text.
QString comboForm(const char *className)
{
    QString items;
    for (int i = 0; i < itemCount; ++i)
        items += QStringLiteral("<item><property name=\"text\"><string>Item %1</string></property>"
                                "</item>")
                         .arg(i);
    return CcTest::formXml(QStringLiteral("  <widget class=\"%1\" name=\"combo\">%2</widget>\n")
                                   .arg(QLatin1String(className), items));
}

// Milliseconds of one run of work, including the layout and paint it causes.
double timeIt(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QApplication::processEvents();
    return timer.nsecsElapsed() / 1e6;
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

QAction *editAction(const Side &side, QWidget *combo)
{
    QExtensionManager *manager = CcTest::designerCore()->extensionManager();
    if (side.ours) {
        auto *menu = qt_extension<QDesignerTaskMenuExtension *>(manager, combo);
        return menu ? menu->preferredEditAction() : nullptr;
    }
    auto *menu = qobject_cast<QDesignerTaskMenuExtension *>(
            manager->extension(combo, QStringLiteral("QDesignerInternalTaskMenuExtension")));
    const QList<QAction *> actions = menu ? menu->taskActions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->text() == QLatin1String("Edit Items..."))
            return action;
    }
    return nullptr;
}

// One repetition on a fresh form: Edit Items, rename the edited row in place, OK; Undo; Redo.
void measure(Side &side)
{
    QDesignerFormWindowInterface *form = CcTest::createFormWindow(side.ui);
    auto *combo = form->mainContainer()->findChild<QComboBox *>(QStringLiteral("combo"));
    check(combo && combo->count() == itemCount, side, "the form has no combo box of all entries");
    QAction *action = editAction(side, combo);
    check(action, side, "no edit entry in the combo box's task menu");
    QUndoStack *history = form->commandHistory();
    const int before = history->count();
    const QString original = combo->itemText(editedRow);
    const QString renamed = QStringLiteral("Renamed %1").arg(editedRow);
    QApplication::processEvents();

    bool answered = false;
    side.edit.append(timeIt([&] {
        answered = triggerAnswering(action, [&](QDialog *dialog) {
            auto *list = dialog->findChild<QListWidget *>(QStringLiteral("listWidget"));
            check(list && list->count() == itemCount, side, "no list of all entries in the editor");
            list->setCurrentRow(editedRow);
            list->item(editedRow)->setText(renamed);
        });
    }));
    check(answered, side, "the edit entry opened no dialog");
    check(history->count() == before + 1, side, "OK did not push exactly one command");
    check(combo->itemText(editedRow) == renamed, side, "OK did not rename the entry");
    side.undo.append(timeIt([&] { history->undo(); }));
    check(combo->itemText(editedRow) == original, side, "Undo did not restore the entry");
    side.redo.append(timeIt([&] { history->redo(); }));
    check(combo->itemText(editedRow) == renamed, side, "Redo did not rename the entry again");

    CcTest::closeFormWindow(form);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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

    Side designer {"Designer's QComboBox", false, comboForm("QComboBox"), {}, {}, {}};
    Side ours {"VoCc::ComboBox", true, comboForm("VoCc::ComboBox"), {}, {}, {}};
    // Alternating which side goes first, so neither always finds the other's leftovers.
    for (int r = 0; r < repetitions; ++r) {
        measure(r % 2 ? designer : ours);
        measure(r % 2 ? ours : designer);
    }

    std::printf("item editing, combo box of %d entries, row %d renamed, %d repetitions "
                "(medians, ms)\n",
                itemCount, editedRow, repetitions);
    for (const Side *side : {&designer, &ours}) {
        std::printf("  %-22s edit + OK %8.2f\n", side->label, Bench::median(side->edit));
        std::printf("  %-22s undo      %8.2f\n", side->label, Bench::median(side->undo));
        std::printf("  %-22s redo      %8.2f\n", side->label, Bench::median(side->redo));
    }
    const struct
    {
        const char *step;
        QList<double> Side::*times;
    } steps[] = {{"edit + OK", &Side::edit}, {"undo", &Side::undo}, {"redo", &Side::redo}};
    for (const auto &step : steps)
        std::printf("ratio %-9s ours / Designer's: %.2f (target <= 1.00)\n", step.step,
                    Bench::median(ours.*step.times) / Bench::median(designer.*step.times));
    return 0;
}
