#pragma once

#include "itemrecord.h"
#include "matrixcontents.h"
#include "pagegroupcontents.h"

#include <QtDesigner/private/qdesigner_formwindowcommand_p.h>

#include <QPointer>

namespace qdesigner_internal {
class DesignerIconCache;
}

namespace VoCc {
class AbstractMatrixOptions;
class CheckableTextComboBox;
class ComboBox;
class DrawbackBoxGroup;
class MatrixPopButtons;
class OptionButtons;
class OptionComboBox;
class OptionRadios;
} // namespace VoCc

// A command's text, translated in the context "Command"; null gives an empty text.
QString changeCommandText(const char *text);
// The form's icon cache; null when the form window is not one of Designer's own.
qdesigner_internal::DesignerIconCache *formIconCache(QDesignerFormWindowInterface *formWindow);

// An accepted item edit as an undoable step on the form's undo stack: the command keeps the
// contents before and after the edit and writes one or the other into the widget through
// its write function, applyItems(). Pushing it runs redo(). Once the widget is gone, redo()
// and undo() do nothing.
template<class Widget, class Contents>
class ChangeContentsCommand : public qdesigner_internal::QDesignerFormWindowCommand
{
public:
    using WidgetType = Widget;

    void init(Widget *widget, const Contents &oldContents, const Contents &newContents)
    {
        m_widget = widget;
        m_oldContents = oldContents;
        m_newContents = newContents;
    }

    void redo() override
    {
        if (m_widget)
            applyItems(m_newContents);
    }
    void undo() override
    {
        if (m_widget)
            applyItems(m_oldContents);
    }

protected:
    ChangeContentsCommand(const char *text, QDesignerFormWindowInterface *formWindow)
        : QDesignerFormWindowCommand(changeCommandText(text), formWindow),
          m_iconCache(formIconCache(formWindow))
    { }

    virtual void applyItems(const Contents &contents) = 0;

    QPointer<Widget> m_widget;
    Contents m_oldContents;
    Contents m_newContents;
    // The form's icon cache; null when the form window is not one of Designer's own.
    qdesigner_internal::DesignerIconCache *m_iconCache;
};

class ChangeCheckComboCommand
    : public ChangeContentsCommand<VoCc::CheckableTextComboBox, ItemRecords>
{
public:
    explicit ChangeCheckComboCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const ItemRecords &items) override;
};

class ChangeComboBoxCommand : public ChangeContentsCommand<VoCc::ComboBox, ItemRecords>
{
public:
    explicit ChangeComboBoxCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const ItemRecords &items) override;
};

class ChangeOptionComboCommand : public ChangeContentsCommand<VoCc::OptionComboBox, ItemRecords>
{
public:
    explicit ChangeOptionComboCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const ItemRecords &items) override;
};

class ChangeOptionButtonsCommand : public ChangeContentsCommand<VoCc::OptionButtons, ItemRecords>
{
public:
    explicit ChangeOptionButtonsCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const ItemRecords &items) override;
};

class ChangeOptionRadiosCommand : public ChangeContentsCommand<VoCc::OptionRadios, ItemRecords>
{
public:
    explicit ChangeOptionRadiosCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const ItemRecords &items) override;
};

class ChangeDrawbackBoxCommand
    : public ChangeContentsCommand<VoCc::DrawbackBoxGroup, PageGroupContents>
{
public:
    explicit ChangeDrawbackBoxCommand(QDesignerFormWindowInterface *formWindow);

    using ChangeContentsCommand::init;
    // The two page-id lists the editor kept (its initial and its final order) are kept with
    // the command as they came, and nothing reads them: the pages themselves, in their new
    // order, are in the contents.
    void init(VoCc::DrawbackBoxGroup *group, const PageGroupContents &oldContents,
              const PageGroupContents &newContents, const QList<int> &initialOrder,
              const QList<int> &finalOrder);

protected:
    void applyItems(const PageGroupContents &contents) override;

private:
    QList<int> m_initialOrder;
    QList<int> m_finalOrder;
};

// Writes the cells of a push-button, radio-button or check-box matrix. The dimensions are not
// its business: the task menu sets them as properties of their own, so undoing this command
// alone restores the cells but not the counts.
class ChangeMatrixBtnsCommand
    : public ChangeContentsCommand<VoCc::AbstractMatrixOptions, MatrixContents>
{
public:
    explicit ChangeMatrixBtnsCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const MatrixContents &contents) override;
};

// Writes the cells of a pop-button matrix, and its dimensions with them.
class ChangeMatrixPopBtnsCommand
    : public ChangeContentsCommand<VoCc::MatrixPopButtons, MatrixContents>
{
public:
    explicit ChangeMatrixPopBtnsCommand(QDesignerFormWindowInterface *formWindow);

protected:
    void applyItems(const MatrixContents &contents) override;
};
