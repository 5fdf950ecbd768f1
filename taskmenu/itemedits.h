#pragma once

#include <QPointer>

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
QT_END_NAMESPACE

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

// One item edit of a widget on a form: opens the widget's editor over the form's window,
// and when the user accepts a change, pushes the command that applies it on the form's undo
// stack. A cancel, an unchanged list, or a form or widget gone while the dialog was open,
// changes nothing. The push-button, radio-button and check-box matrices also get their new
// row and column counts as property changes of their own, in the same undo step.
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::CheckableTextComboBox *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::ComboBox *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::OptionComboBox *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::OptionButtons *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::OptionRadios *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::DrawbackBoxGroup *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::AbstractMatrixOptions *widget);
void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::MatrixPopButtons *widget);
