#pragma once

#include "designertestcore.h"
#include "modalanswer.h"

#include <QtDesigner>
#include <QtTest>

namespace CcTest {

// Works an item editor dialog the way a user does: through its buttons and spin boxes, the
// in-place editor of its list or table and the editors of the property pane, found by their
// object names and Qt classes only (the dialog's own classes live inside the plug-in module).
// What it cannot find or do is kept in failures(), not reported to QtTest: a randomized session
// runs the driver many times over and decides itself which runs failed. After the first
// failure every further action is passed over.
class ItemDialogDriver
{
public:
    explicit ItemDialogDriver(QDialog *dialog)
        : m_dialog(dialog),
          m_list(child<QListWidget>("listWidget")),
          m_table(child<QTableWidget>("tableWidget")),
          m_pane(dialog->findChild<QTreeWidget *>())
    {
        if (!m_list && !m_table)
            fail(QStringLiteral("no QListWidget \"listWidget\" or QTableWidget \"tableWidget\""));
        if (!m_pane)
            fail(QStringLiteral("no property pane (a QTreeWidget)"));
        else if (!m_pane->isVisible())
            click("showPropertiesButton");
    }
    const QStringList &failures() const { return m_failures; }
    bool ok() const { return m_failures.isEmpty(); }
    void fail(const QString &what) { m_failures.append(what); }

    QDialog *dialog() const { return m_dialog; }
    QListWidget *list() const { return m_list; }
    QTableWidget *table() const { return m_table; }
    QAbstractItemView *view() const
    {
        return m_list ? static_cast<QAbstractItemView *>(m_list) : m_table;
    }
    template<class T>
    T *child(const char *name) const
    {
        return m_dialog->findChild<T *>(QLatin1String(name));
    }

    // The texts of the list's rows, or of the table's cells row by row.
    QStringList rows() const
    {
        QStringList texts;
        const QAbstractItemModel *model = view() ? view()->model() : nullptr;
        for (int r = 0; model && r < model->rowCount(); ++r) {
            for (int c = 0; c < model->columnCount(); ++c)
                texts.append(model->index(r, c).data().toString());
        }
        return texts;
    }
    // The names of the pane's properties, top to bottom, and one's value as it shows. A
    // sub-property is named through its parent: "text/comment".
    QStringList propertyNames() const
    {
        QStringList names;
        for (int i = 0; i < m_pane->topLevelItemCount(); ++i)
            names.append(m_pane->topLevelItem(i)->text(0));
        return names;
    }
    QString propertyValue(const QString &name) const
    {
        const QTreeWidgetItem *item = propertyItem(name);
        return item ? item->text(1) : QStringLiteral("<no %1>").arg(name);
    }

    // Does what a script says, its actions apart by spaces and lettered as a failing random
    // session prints them: "s1" selects row 1, "c0,2" the cell in row 0 and column 2, "nText"
    // adds a row named Text, "rText" renames what is current, "d", "u" and "D" delete the
    // current row or move it up or down, "R3" and "C2" step the row and column counts to 3 and 2,
    // "pName=Value" types a property's value and "tName" clicks a check box property.
    void play(const QString &script)
    {
        for (const QString &action : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const char letter = action.at(0).toLatin1();
            const QString arg = action.mid(1);
            const QStringList args = arg.split(QRegularExpression(QStringLiteral("[,=]")));
            if (letter == 's' || letter == 'c')
                select(args.at(0).toInt(), args.value(1).toInt());
            else if (letter == 'n')
                addRow(arg);
            else if (letter == 'r')
                renameCurrent(arg);
            else if (letter == 'p')
                typeProperty(args.at(0), args.value(1));
            else if (letter == 't')
                toggleProperty(arg);
            else if (letter == 'R' || letter == 'C')
                stepTo(letter == 'R' ? "rowCounts" : "colCounts", arg.toInt());
            else if (letter == 'd')
                click("deleteListItemButton");
            else if (letter == 'u' || letter == 'D')
                click(letter == 'u' ? "moveListItemUpButton" : "moveListItemDownButton");
            else
                fail(QStringLiteral("no action %1").arg(action));
        }
    }

    // Clicks a row of the list, or a cell of the table.
    void select(int row, int column = 0)
    {
        QAbstractItemView *view = this->view();
        const QModelIndex index = view ? view->model()->index(row, column) : QModelIndex();
        if (!need(index.isValid(), QStringLiteral("no cell %1,%2 to select").arg(row).arg(column)))
            return;
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    }
    // Steps the spin box "rowCounts" or "colCounts" to value with the arrow keys.
    void stepTo(const char *spinBox, int value)
    {
        auto *spin = child<QSpinBox>(spinBox);
        const QString name = QLatin1String(spinBox);
        while (need(spin, QStringLiteral("no spin box ") + name) && spin->value() != value) {
            const int before = spin->value();
            QTest::keyClick(spin, before < value ? Qt::Key_Up : Qt::Key_Down);
            need(spin->value() != before,
                 QStringLiteral("%1 stops at %2 before %3").arg(name).arg(before).arg(value));
        }
    }
    void click(const char *button)
    {
        auto *target = child<QAbstractButton>(button);
        if (need(target, QStringLiteral("no button %1").arg(QLatin1String(button))))
            QTest::mouseClick(target, Qt::LeftButton);
    }
    // New below the current row, named by typing into the in-place editor.
    void addRow(const QString &text)
    {
        click("newListItemButton");
        typeIntoShownEditor(m_list->viewport(), text);
    }
    // Types a new text for the current row or cell into the in-place editor.
    void renameCurrent(const QString &text)
    {
        if (!ok())
            return;
        QTest::keyClick(view(), Qt::Key_F2);
        typeIntoShownEditor(view()->viewport(), text);
    }
    // Types a value into a string property of the current row.
    void typeProperty(const QString &name, const QString &text)
    {
        if (openPropertyEditor(name))
            typeIntoShownEditor(m_pane->viewport(), text);
    }
    // Clicks a check box property (a string's "translatable") of the current row.
    void toggleProperty(const QString &name)
    {
        QCheckBox *box =
                openPropertyEditor(name) ? shownChild<QCheckBox>(m_pane->viewport()) : nullptr;
        if (need(box, QStringLiteral("no check box for %1").arg(name)))
            QTest::mouseClick(box, Qt::LeftButton);
        settle();
    }
    // Picks a file for an icon property of the current row through the file dialog.
    void chooseIconFile(const QString &name, const QString &path)
    {
        if (!openPropertyEditor(name))
            return;
        QAction *chooseFile = nullptr;
        for (QToolButton *button : m_pane->viewport()->findChildren<QToolButton *>()) {
            for (QAction *action : button->isVisible() && button->menu() ? button->menu()->actions()
                                                                         : QList<QAction *>()) {
                if (action->text() == QLatin1String("Choose File..."))
                    chooseFile = action;
            }
        }
        if (need(chooseFile, QStringLiteral("no \"Choose File...\" for %1").arg(name)))
            need(answerModal<QFileDialog>(
                         [chooseFile] { chooseFile->trigger(); },
                         [path](QFileDialog *dialog) { typeFileName(dialog, path); }),
                 QStringLiteral("no file dialog for %1").arg(name));
        settle();
    }

private:
    // Whether the driver goes on: nothing failed so far and what it needs is there. When it
    // is not there, what says what was looked for.
    bool need(bool there, const QString &what)
    {
        if (ok() && !there)
            fail(what);
        return ok();
    }
    template<class T>
    static T *shownChild(QWidget *parent)
    {
        const QList<T *> children = parent->findChildren<T *>();
        auto shown = std::find_if(children.cbegin(), children.cend(),
                                  [](const T *child) { return child->isVisible(); });
        return shown == children.cend() ? nullptr : *shown;
    }
    QTreeWidgetItem *propertyItem(const QString &name) const
    {
        const QStringList path = name.split(QLatin1Char('/'));
        QTreeWidgetItem *item = m_pane->findItems(path.first(), Qt::MatchExactly).value(0);
        for (int i = 1; item && i < path.size(); ++i) {
            item->setExpanded(true);
            QTreeWidgetItem *parent = item;
            item = nullptr;
            for (int c = 0; c < parent->childCount(); ++c) {
                if (parent->child(c)->text(0) == path.at(i))
                    item = parent->child(c);
            }
        }
        return item;
    }
    // Tells whether the property was there to open.
    bool openPropertyEditor(const QString &name)
    {
        QTreeWidgetItem *item = ok() ? propertyItem(name) : nullptr;
        if (!need(item, QStringLiteral("no property %1").arg(name)))
            return false;
        m_pane->scrollToItem(item);
        // A click on the value column opens the property's editor.
        const QHeaderView *header = m_pane->header();
        const QPoint valueCell(header->sectionViewportPosition(1) + header->sectionSize(1) / 2,
                               m_pane->visualItemRect(item).center().y());
        QTest::mouseClick(m_pane->viewport(), Qt::LeftButton, {}, valueCell);
        settle();
        return true;
    }
    // Types into the line edit an editor has just opened among parent's children, over what
    // it held, and ends the editing with Return.
    void typeIntoShownEditor(QWidget *parent, const QString &text)
    {
        QLineEdit *edit = ok() ? shownChild<QLineEdit>(parent) : nullptr;
        if (!need(edit, QStringLiteral("no editor open to type %1").arg(text)))
            return;
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Backspace);
        for (const QChar c : text) {
            // QTest spells out ASCII only; other letters come as the text of a key of their own.
            if (c.unicode() < 128)
                QTest::keyClick(edit, c.toLatin1());
            else
                QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c),
                                    Qt::NoModifier);
        }
        QTest::keyClick(edit, Qt::Key_Return);
        settle();
    }

    QDialog *m_dialog;
    QListWidget *m_list;
    QTableWidget *m_table;
    QTreeWidget *m_pane;
    QStringList m_failures;
};

inline QDesignerTaskMenuExtension *taskMenuOf(QObject *widget)
{
    return qt_extension<QDesignerTaskMenuExtension *>(designerCore()->extensionManager(), widget);
}

// Triggers entry, works the editor it opens with act and presses OK or Cancel. Returns what
// went wrong, empty when nothing did: no editor came up, or the driver's failures.
inline QString editThrough(QAction *entry, const std::function<void(ItemDialogDriver &)> &act,
                           bool accept = true)
{
    QStringList failures;
    const auto work = [&act, &failures](QDialog *dialog) {
        ItemDialogDriver driver(dialog);
        if (driver.ok())
            act(driver);
        failures = driver.failures();
    };
    if (!answerModal<QDialog>([entry] { entry->trigger(); }, work, accept))
        return QStringLiteral("no editor came up");
    return failures.join(QStringLiteral("; "));
}

// The same through the widget's context-menu entry.
inline QString edit(QWidget *widget, const std::function<void(ItemDialogDriver &)> &act,
                    bool accept = true)
{
    QDesignerTaskMenuExtension *menu = taskMenuOf(widget);
    if (!menu)
        return QStringLiteral("no task menu");
    return editThrough(menu->preferredEditAction(), act, accept);
}

} // namespace CcTest
