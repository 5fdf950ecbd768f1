#pragma once

#include "CcGlobal.hpp"

#include <QFormBuilder>
#include <QStringList>

QT_BEGIN_NAMESPACE
class DomProperty;
class DomUI;
class DomWidget;
QT_END_NAMESPACE

namespace VoCc {

class FormTranslator;

// Loads and saves forms that use the CommonControls widgets, without any Designer plug-in.
//
// The entries of the list-like widgets travel in the form file as <item> elements of the
// widget, each with <property> children "data", "text", "icon" (a pixmap path), "toolTip"
// and "action", written in that order as <string> values: texts and tool tips with
// notr="false", data, icon paths and action names with notr="true". A text or tool tip marked
// for translation (the widgets' stringAttributes()) carries the marks as Qt's .ui format
// spells them: notr="true", comment (the disambiguation), extracomment and id. An absent property is
// an empty entry, so item i holds entry i of every list of the widget, and a widget gets as
// many items as its longest list has entries:
//  - OptionComboBox, OptionButtons, OptionRadios, OptionCheckBox: text, icon, toolTip, data;
//    here the text list alone says how many entries there are, and list entries beyond it
//    are not written;
//  - CheckableTextComboBox: text, toolTip (the same: as many items as texts);
//  - MatrixPushButtons, MatrixRadioButtons, MatrixCheckBoxes: text, icon, toolTip, action.
//    Their dimensions are the properties "row" and "column"; saveExtraInfo writes both next
//    to the items (replacing any already there), so the file always says how the entries
//    are laid out. The lists do not depend on the dimensions: a grid shows its first
//    row x column entries. Trailing entries that are empty in every list are blank cells
//    and are not written (the same for MatrixPopButtons).
//  - MatrixPopButtons: its texts are its "textList" property; its items carry icon, toolTip
//    and action only, and "row", "column" and "textList" are written as properties
//    (replacing any already there), so no text is stored twice. A string list has one set of
//    translation marks for all its strings: when the texts are marked differently, they go
//    into the items instead, each with its own marks, and there is no "textList". When
//    loading a file without a "textList" property, texts in its items are used.
//  - ComboBox: its items (text and icon) belong to the form writer (Designer writes them
//    from the items' display-property roles); saveExtraInfo only puts each item's action
//    into the <item> elements already there, and never adds or removes an item. On load,
//    an item text longer than the 1,000 characters any of the widgets shows of an entry is
//    cut to that, with one warning for the widget (other widgets keep whole texts in their
//    lists and only show the first 1,000 characters).
//  - DrawbackBoxGroup: the pages are child widgets whose window titles are the page titles;
//    saveExtraInfo writes "currentIndex" and each titled page's "windowTitle" (replacing
//    one with another text; one with the same text stays, with its translation marks). On
//    load, "currentIndex" is applied again once the pages exist.
//
// saveExtraInfo replaces what it wrote before, so saving the same element again adds
// nothing. loadExtraInfo reads numbers and icon sets where strings are expected and gives
// every list one entry per item (empty where the item lacks it). What the element holds that
// the widget does not keep (unknown item properties, items of widgets without entries and
// items nested in items, repeated properties, the parts of a value that are not its text,
// marks on identifiers, rows, columns and current indexes the widget did not take) is named
// in one warning per widget: its class, object name, and each property and value. Both take
// an unused context pointer.
class VOCC_EXPORT FormBuilder : public QFormBuilder
{
public:
    FormBuilder();
    ~FormBuilder() override;

    // Writes the widget's entries into its element.
    static void saveExtraInfo(DomWidget *domWidget, QWidget *widget, void *context);
    // Reads the widget's entries from its element.
    static void loadExtraInfo(DomWidget *domWidget, QWidget *widget, void *context);

    // Loads a form. A document whose elements nest more than 512 deep, that has more than
    // 10,000 widgets side by side in one widget (pages of a page group, tab widget, stacked
    // widget or tool box aside), or that holds a NUL byte is refused before it reaches Qt's
    // reader: load() returns null and errorString() says why.
    QWidget *load(QIODevice *device, QWidget *parentWidget = nullptr) override;
    using QFormBuilder::save;
    // Why the last load failed: what load() itself found, or else what Qt's reader reported.
    QString errorString() const;

    // The VoCc classes this builder creates, as written in form files ("VoCc::ComboBox").
    static QStringList widgetClassNames();
    // Makes a widget of one of those classes, or returns null for any other name.
    static QWidget *createCommonControl(const QString &className, QWidget *parent);

    // Whether loading translates the form's texts (on by default): each string not marked
    // notr="true" becomes QCoreApplication::translate(form class, text, comment), the form
    // class being the <class> element of the .ui, as lupdate writes the contexts. Entry
    // texts and tool tips of the library's list-like widgets are translated too; their data,
    // icon paths and action names never are.
    void setTranslationEnabled(bool enabled);
    bool isTranslationEnabled() const;
    // Whether a loaded form translates its texts again, from their sources, each time its
    // widgets receive QEvent::LanguageChange (a translator installed or removed); off by
    // default. The source texts are kept only when this is on.
    void setLanguageChangeEnabled(bool enabled);
    bool isLanguageChangeEnabled() const;

    // Classes named by the last loaded form that neither this builder nor Qt could create
    // (the loader then puts a widget of the declared base class in their place).
    QStringList unknownClassNames() const;

protected:
    QWidget *createWidget(const QString &widgetName, QWidget *parentWidget,
                          const QString &name) override;
    QWidget *create(DomUI *ui, QWidget *parentWidget) override;
    QWidget *create(DomWidget *domWidget, QWidget *parentWidget) override;
    QAction *create(DomAction *domAction, QObject *parent) override;
    using QFormBuilder::create;
    bool addItem(DomWidget *domWidget, QWidget *widget, QWidget *parentWidget) override;
    using QFormBuilder::addItem;
    void saveExtraInfo(QWidget *widget, DomWidget *domWidget, DomWidget *domParentWidget) override;
    DomWidget *createDom(QWidget *widget, DomWidget *domParentWidget, bool recursive) override;
    QList<DomProperty *> computeProperties(QObject *object) override;
    bool checkProperty(QObject *object, const QString &propertyName) const override;
    using QFormBuilder::createDom;

private:
    QStringList m_unknownClassNames;
    QString m_errorString;
    bool m_translationEnabled = true;
    bool m_languageChangeEnabled = false;
    // Only while a form is being built.
    FormTranslator *m_translator = nullptr;
};

} // namespace VoCc
