#include "itemdialogdriver.h"

#include "modalanswer.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace CcTest {

namespace {

// Types into the line edit an editor has just opened among parent's children, and ends the
// editing with Return.
void typeIntoShownEditor(QWidget *parent, const QString &text)
{
    const QList<QLineEdit *> edits = parent->findChildren<QLineEdit *>();
    auto shown = std::find_if(edits.cbegin(), edits.cend(),
                              [](const QLineEdit *edit) { return edit->isVisible(); });
    QVERIFY2(shown != edits.cend(), "no editor open");
    (*shown)->selectAll();
    for (const QChar c : text) {
        // QTest spells out ASCII only; other letters come as the text of a key of their own.
        if (c.unicode() < 128)
            QTest::keyClick(*shown, c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, *shown, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    QTest::keyClick(*shown, Qt::Key_Return);
    settle();
}

} // namespace

ItemDialogDriver::ItemDialogDriver(QDialog *dialog)
    : m_dialog(dialog),
      m_list(dialog->findChild<QListWidget *>(QStringLiteral("listWidget"))),
      m_table(dialog->findChild<QTableWidget *>(QStringLiteral("tableWidget"))),
      m_pane(dialog->findChild<QTreeWidget *>())
{
    if (m_pane && !m_pane->isVisible())
        QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("showPropertiesButton")),
                          Qt::LeftButton);
}

QStringList ItemDialogDriver::rows() const
{
    QStringList texts;
    for (int i = 0; m_list && i < m_list->count(); ++i)
        texts.append(m_list->item(i)->text());
    for (int r = 0; m_table && r < m_table->rowCount(); ++r) {
        for (int c = 0; c < m_table->columnCount(); ++c)
            texts.append(m_table->item(r, c) ? m_table->item(r, c)->text() : QString());
    }
    return texts;
}

QStringList ItemDialogDriver::propertyNames() const
{
    QStringList names;
    for (int i = 0; i < m_pane->topLevelItemCount(); ++i)
        names.append(m_pane->topLevelItem(i)->text(0));
    return names;
}

QTreeWidgetItem *ItemDialogDriver::propertyItem(const QString &name) const
{
    for (int i = 0; i < m_pane->topLevelItemCount(); ++i) {
        if (m_pane->topLevelItem(i)->text(0) == name)
            return m_pane->topLevelItem(i);
    }
    return nullptr;
}

QString ItemDialogDriver::propertyValue(const QString &name) const
{
    const QTreeWidgetItem *item = propertyItem(name);
    return item ? item->text(1) : QStringLiteral("<no %1>").arg(name);
}

QAbstractItemView *ItemDialogDriver::view() const
{
    return m_list ? static_cast<QAbstractItemView *>(m_list) : m_table;
}

void ItemDialogDriver::selectCell(int row, int column)
{
    const QModelIndex index = m_table->model()->index(row, column);
    m_table->scrollTo(index);
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, m_table->visualRect(index).center());
}

void ItemDialogDriver::stepTo(const char *spinBox, int value)
{
    auto *spin = m_dialog->findChild<QSpinBox *>(QLatin1String(spinBox));
    QVERIFY2(spin, spinBox);
    while (spin->value() != value) {
        const int before = spin->value();
        QTest::keyClick(spin, before < value ? Qt::Key_Up : Qt::Key_Down);
        QVERIFY2(spin->value() != before, spinBox);
    }
}

void ItemDialogDriver::select(int row)
{
    QListWidgetItem *item = m_list->item(row);
    m_list->scrollToItem(item);
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                      m_list->visualItemRect(item).center());
}

void ItemDialogDriver::click(const char *button)
{
    auto *target = m_dialog->findChild<QAbstractButton *>(QLatin1String(button));
    QVERIFY2(target, button);
    QTest::mouseClick(target, Qt::LeftButton);
}

void ItemDialogDriver::addRow(const QString &text)
{
    click("newListItemButton");
    typeIntoShownEditor(m_list->viewport(), text);
}

void ItemDialogDriver::renameCurrent(const QString &text)
{
    QTest::keyClick(view(), Qt::Key_F2);
    typeIntoShownEditor(view()->viewport(), text);
}

void ItemDialogDriver::openPropertyEditor(const QString &name)
{
    QTreeWidgetItem *item = propertyItem(name);
    QVERIFY2(item, qPrintable(name));
    m_pane->scrollToItem(item);
    // A click on the value column opens the property's editor.
    const QHeaderView *header = m_pane->header();
    const QPoint valueCell(header->sectionViewportPosition(1) + header->sectionSize(1) / 2,
                           m_pane->visualItemRect(item).center().y());
    QTest::mouseClick(m_pane->viewport(), Qt::LeftButton, {}, valueCell);
    settle();
}

void ItemDialogDriver::typeProperty(const QString &name, const QString &text)
{
    openPropertyEditor(name);
    typeIntoShownEditor(m_pane->viewport(), text);
}

void ItemDialogDriver::chooseIconFile(const QString &name, const QString &path)
{
    openPropertyEditor(name);
    QAction *chooseFile = nullptr;
    const QList<QToolButton *> buttons = m_pane->viewport()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (!button->isVisible() || !button->menu())
            continue;
        const QList<QAction *> actions = button->menu()->actions();
        for (QAction *action : actions) {
            if (action->text() == QLatin1String("Choose File..."))
                chooseFile = action;
        }
    }
    QVERIFY2(chooseFile, qPrintable(name));
    answerModal<QFileDialog>([chooseFile] { chooseFile->trigger(); },
                             [path](QFileDialog *dialog) { typeFileName(dialog, path); });
    settle();
}

} // namespace CcTest
