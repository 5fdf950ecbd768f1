#pragma once

#include <QObject>
#include <QtDesigner/QDesignerExtraInfoExtension>

class ExtraInfoExtensionFactory;

// Hands the saving and loading of one widget's extra data to the widget library's form
// builder. The form-level hooks have nothing to do. It has no parent and deletes itself when
// its widget is destroyed.
class ExtraInfoExtension : public QObject, public QDesignerExtraInfoExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerExtraInfoExtension)
public:
    ExtraInfoExtension(QWidget *widget, ExtraInfoExtensionFactory *factory);

    QDesignerFormEditorInterface *core() const override;
    QWidget *widget() const override;

    bool saveUiExtraInfo(DomUI *ui) override;
    bool loadUiExtraInfo(DomUI *ui) override;

    bool saveWidgetExtraInfo(DomWidget *ui_widget) override;
    bool loadWidgetExtraInfo(DomWidget *ui_widget) override;

private:
    QWidget *m_widget;
    ExtraInfoExtensionFactory *m_factory;
};
