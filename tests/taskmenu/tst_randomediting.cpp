// Randomized edit sessions through the real Designer core and the real editors: a seeded
// generator makes a session of steps (an editor opened on a widget, one to eight actions in
// it, OK or Cancel; Undo and Redo; saving and loading into a fresh form window), and after
// every step the form must hold its promises: undoing everything gives the text it started
// from, redoing everything the text after the last edit, saving what was loaded gives the
// same text, the widget shows what the text says, no editor is left alive, nothing warns.
// A failing session is shrunk to the steps that still fail and printed with its seed.
//
// CC_RANDOM_SESSIONS (default 300) sets how many sessions run, CC_RANDOM_SEED (default 1)
// the seed of the first; session i uses seed + i.

#include "designertestcore.h"
#include "editingfamilies.h"
#include "modalanswer.h"
#include "testpictures.h"

#include <QDesignerFormWindowInterface>
#include <QElapsedTimer>
#include <QListWidget>
#include <QRandomGenerator>
#include <QTableWidget>
#include <QUndoStack>
#include <QtTest>

using namespace CcTest;

namespace {

enum class Act { Select, New, Delete, Up, Down, Rename, Property, Icon, Rows, Columns, Cell };

struct Action
{
    Act act;
    int a;
    int b;
    QString text;
};

struct Step
{
    enum Kind { Edit, Undo, Redo, Reload } kind;
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

// What a user does in an editor, one letter each: the letters of an action's weighted
// choices below, and how a failing session is printed.
const char actLetters[] = "snduDrpiRCc";

QString describe(const Session &session)
{
    QStringList steps;
    for (const Step &step : session.steps) {
        QString text =
                QStringLiteral("%1 x%2").arg(QLatin1String("EURL" + step.kind, 1)).arg(step.count);
        for (const Action &action : step.actions)
            text += QStringLiteral(" %1(%2,%3,%4)")
                            .arg(QLatin1Char(actLetters[int(action.act)]))
                            .arg(action.a)
                            .arg(action.b)
                            .arg(action.text);
        steps << text
                        + (step.kind == Step::Edit && !step.accept ? QStringLiteral(" Cancel")
                                                                   : QString());
    }
    return QStringLiteral(
                   "seed %1, %2 (E edit, U undo, R redo, L save and load; actions %3):\n  %4")
            .arg(session.seed)
            .arg(QLatin1String(family(session.family).className), QLatin1String(actLetters),
                 steps.join(QStringLiteral("\n  ")));
}

// Texts a form author might type, XML's special characters and non-ASCII letters among them.
const char *const words[] = {"x", "Zwölf", "a&b", "<tag>", "\"q\"", "two words", "y'z", "Ende"};

Session generate(quint32 seed)
{
    QRandomGenerator random(seed);
    Session session {seed, int(random.bounded(familyCount())), {}};
    const bool list = family(session.family).list;
    // Weighted choices of what a user does in the editor.
    const char *acts = list ? "sssnnndduDrrppp" : "RRCCcccrrppp";
    const int steps = 1 + int(random.bounded(5));
    for (int s = 0; s < steps; ++s) {
        const int kind = int(random.bounded(20));
        if (kind < 3) {
            session.steps.append({Step::Undo, 1 + int(random.bounded(3)), true, {}});
        } else if (kind < 5) {
            session.steps.append({Step::Redo, 1 + int(random.bounded(3)), true, {}});
        } else if (kind < 6) {
            session.steps.append({Step::Reload, 0, true, {}});
        } else {
            Step step {Step::Edit, 0, random.bounded(5) != 0, {}};
            const int actions = 1 + int(random.bounded(8));
            for (int i = 0; i < actions; ++i) {
                const char letter = acts[random.bounded(int(qstrlen(acts)))];
                Act act = Act(int(strchr(actLetters, letter) - actLetters));
                if (random.bounded(40) == 0)
                    act = Act::Icon; // rare: the file dialog is slow
                step.actions.append({act, int(random.bounded(100)), int(random.bounded(100)),
                                     QString::fromUtf8(words[random.bounded(int(std::size(words)))])
                                             + QString::number(random.bounded(10))});
            }
            session.steps.append(step);
        }
    }
    return session;
}

bool hasCurrent(const ItemDialogDriver &dialog)
{
    return dialog.list()
            ? dialog.list()->currentRow() >= 0
            : dialog.table()->currentRow() >= 0 && dialog.table()->currentColumn() >= 0;
}

// One action as the dialog is now; one that needs what is not there (a row to select in an
// empty list, a current item to rename) is passed over, as a user could not do it either.
void act(ItemDialogDriver &dialog, const Family &family, const Action &action)
{
    const int rows = dialog.list() ? dialog.list()->count() : dialog.table()->rowCount();
    const int columns = dialog.table() ? dialog.table()->columnCount() : 1;
    const QStringList pane = dialog.propertyNames();
    switch (action.act) {
    case Act::Select:
        if (rows > 0)
            dialog.select(action.a % rows);
        break;
    case Act::New:
        dialog.addRow(action.text);
        break;
    case Act::Delete:
        dialog.click("deleteListItemButton");
        break;
    case Act::Up:
        dialog.click("moveListItemUpButton");
        break;
    case Act::Down:
        dialog.click("moveListItemDownButton");
        break;
    case Act::Rename:
        if (hasCurrent(dialog))
            dialog.renameCurrent(action.text);
        break;
    case Act::Property: {
        const QStringList strings =
                family.properties.filter(QRegularExpression(QStringLiteral("^(?!icon$)")));
        if (!pane.isEmpty())
            dialog.typeProperty(strings.at(action.a % strings.size()), action.text);
        break;
    }
    case Act::Icon:
        if (!pane.isEmpty() && family.properties.contains(QStringLiteral("icon")))
            dialog.chooseIconFile(QStringLiteral("icon"), testIcon);
        break;
    case Act::Rows:
        dialog.stepTo("rowCounts", 1 + action.a % 5);
        break;
    case Act::Columns:
        dialog.stepTo("colCounts", 1 + action.a % 5);
        break;
    case Act::Cell:
        if (rows > 0 && columns > 0)
            dialog.selectCell(action.a % rows, action.b % columns);
        break;
    }
}

// Warnings raised while a session runs; the offscreen platform's own notes are not ours.
QStringList warnings;
QtMessageHandler previousHandler = nullptr;
void collectWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.contains(QLatin1String("propagateSizeHints")))
        return;
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings << message;
    previousHandler(type, context, message);
}

class SessionRun
{
public:
    explicit SessionRun(const Session &session)
        : m_session(session), m_family(family(session.family))
    { }
    ~SessionRun() { closeFormWindow(m_form); }

    // Runs the steps; the first broken promise, or an empty text.
    QString run()
    {
        open(familyForm(m_family, m_family.entriesXml));
        settle();
        const int dialogs = dialogCount();
        for (int i = 0; i < m_session.steps.size(); ++i) {
            warnings.clear();
            perform(m_session.steps.at(i));
            settle();
            QString broken = check();
            if (broken.isEmpty() && dialogCount() != dialogs)
                broken = QStringLiteral("an editor outlived its edit");
            if (broken.isEmpty() && !warnings.isEmpty())
                broken = QStringLiteral("warned: ") + warnings.join(QStringLiteral(" | "));
            if (broken.isEmpty() && QTest::currentTestFailed())
                broken = QStringLiteral("the dialog did not behave as expected");
            if (!broken.isEmpty())
                return QStringLiteral("after step %1: %2").arg(i + 1).arg(broken);
        }
        return QString();
    }

private:
    void open(const QString &ui)
    {
        closeFormWindow(m_form);
        m_form = createFormWindow(ui);
        m_start = m_lastEdit = m_form->contents();
    }

    void perform(const Step &step)
    {
        QUndoStack *history = m_form->commandHistory();
        switch (step.kind) {
        case Step::Undo:
            for (int i = 0; i < step.count; ++i)
                history->undo();
            break;
        case Step::Redo:
            for (int i = 0; i < step.count; ++i)
                history->redo();
            break;
        case Step::Reload:
            open(m_form->contents());
            break;
        case Step::Edit: {
            const int before = history->index();
            edit(
                    editedWidget(m_form),
                    [&](ItemDialogDriver &dialog) {
                        for (const Action &action : step.actions)
                            act(dialog, m_family, action);
                    },
                    step.accept);
            if (history->index() != before)
                m_lastEdit = m_form->contents();
            break;
        }
        }
    }

    QString comparable(const QString &ui) const
    {
        return isPageGroup(m_family) ? withoutCurrentPage(ui) : ui;
    }

    QString check()
    {
        QWidget *widget = editedWidget(m_form);
        const QString now = m_form->contents();
        if (m_family.shown(widget) != shownAtRunTime(now, m_family.shown))
            return QStringLiteral("the widget shows %1, its form says %2")
                    .arg(m_family.shown(widget).join(QLatin1Char('|')),
                         shownAtRunTime(now, m_family.shown).join(QLatin1Char('|')));
        QDesignerFormWindowInterface *loaded = createFormWindow(now);
        const QString saved = loaded->contents();
        closeFormWindow(loaded);
        if (saved != now)
            return QStringLiteral("loading and saving the form changes it:\n%1\n---\n%2")
                    .arg(now, saved);
        QUndoStack *history = m_form->commandHistory();
        const int index = history->index();
        history->setIndex(0);
        const QString undone = m_form->contents();
        history->setIndex(history->count());
        const QString redone = m_form->contents();
        history->setIndex(index);
        if (comparable(undone) != comparable(m_start))
            return QStringLiteral("undoing everything gives\n%1\n---instead of\n%2")
                    .arg(undone, m_start);
        if (comparable(redone) != comparable(m_lastEdit))
            return QStringLiteral("redoing everything gives\n%1\n---instead of\n%2")
                    .arg(redone, m_lastEdit);
        if (comparable(m_form->contents()) != comparable(now))
            return QStringLiteral("undoing and redoing to the same place changes the form");
        return QString();
    }

    const Session &m_session;
    const Family &m_family;
    QDesignerFormWindowInterface *m_form = nullptr;
    QString m_start;
    QString m_lastEdit;
};

QString runSession(const Session &session) { return SessionRun(session).run(); }

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

class TestRandomEditing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(designerCore());
        testIcon = m_pictures.red;
        previousHandler = qInstallMessageHandler(collectWarnings);
    }

    void cleanupTestCase() { qInstallMessageHandler(previousHandler); }

    void randomSessions()
    {
        const int sessions = qEnvironmentVariableIsSet("CC_RANDOM_SESSIONS")
                ? qEnvironmentVariableIntValue("CC_RANDOM_SESSIONS")
                : 300;
        const quint32 seed = qEnvironmentVariableIsSet("CC_RANDOM_SEED")
                ? quint32(qEnvironmentVariableIntValue("CC_RANDOM_SEED"))
                : 1;
        QElapsedTimer clock;
        clock.start();
        int steps = 0;
        for (int i = 0; i < sessions; ++i) {
            const Session session = generate(seed + quint32(i));
            steps += session.steps.size();
            const QString broken = runSession(session);
            if (!broken.isEmpty()) {
                const Session small = shrink(session);
                QFAIL(qPrintable(QStringLiteral("%1\nshrunk to %2\n%3")
                                         .arg(broken, describe(small), runSession(small))));
            }
        }
        qInfo("%d sessions, %d steps, %lld s", sessions, steps, clock.elapsed() / 1000);
    }

private:
    TestPictures m_pictures;
};

QTEST_MAIN(TestRandomEditing)
#include "tst_randomediting.moc"
