#pragma once

#include "itemdialogdriver.h"

#include <QString>
#include <QStringList>
#include <functional>

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
class QDesignerTaskMenuExtension;
class QObject;
class QWidget;
QT_END_NAMESPACE

// The ten widget families with item editors, as the editing tests use them: each with its
// entries in a form, what its widget shows of them, and the scripts a user follows in its
// editor. Shared by the hand-written editing tests and the randomized sessions.
namespace CcTest {

using Shown = QStringList (*)(QWidget *);
using Script = void (*)(ItemDialogDriver &);

struct Family
{
    const char *className;
    const char *taskMenu;
    const char *factory;
    const char *entry;
    const char *title;
    QStringList properties;
    const char *command;
    Shown shown;
    QString entriesXml;
    bool list; // a list of entries, or else a matrix of cells
    Script whenOpened, changedAndCancelled, changedBack, edit;
    // Shown before and after the edit, and after undoing only the edit's change command.
    QStringList opened, edited, changeUndone;
    // Values the edit set that the saved form holds ("@icon" stands for the test icon), and
    // those it does not.
    QStringList saved, notSaved;
    // Commands the edit pushes: the change, and for the button matrices their two counts.
    int pushes;
};

int familyCount();
const Family &family(int index);
const Family &pageGroupFamily();
bool isPageGroup(const Family &family);

// A picture on disk for the icons a user picks; set it before an edit script runs.
extern QString testIcon;

// A form holding one widget of the family, named "edited", with the given entries.
QString familyForm(const Family &family, const QString &entriesXml);
QWidget *editedWidget(QDesignerFormWindowInterface *form);
QDesignerTaskMenuExtension *taskMenuOf(QObject *widget);

// Chooses the widget's entry, works the editor with act and presses OK or Cancel. Tells
// whether an editor came up.
bool edit(QWidget *widget, const std::function<void(ItemDialogDriver &)> &act, bool accept = true);

// The form with the current index of its page groups blotted out.
QString withoutCurrentPage(QString ui);

// What the widget named objectName shows when the run-time loader builds the form, without
// Designer and the plug-in.
QStringList shownAtRunTime(const QString &ui, Shown shown,
                           const QString &objectName = QStringLiteral("edited"));

} // namespace CcTest
