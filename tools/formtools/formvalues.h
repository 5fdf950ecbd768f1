#pragma once

// The values a form file holds for the CommonControls widgets, and which of them a loaded and
// saved copy of the form no longer holds without a warning that names them.
//
// Counted are what the library and the Designer module are answerable for:
//  - every <property> of a VoCc widget, the texts and numbers it holds (each string of a
//    string list on its own) and the attributes of its elements (translation marks, an
//    icon's theme and resource);
//  - every <item> of a VoCc widget (nested ones too), each of its properties the same way;
//  - the "windowTitle" of each page of a VoCc::DrawbackBoxGroup (the page title).
// Left out, because Qt's reader or Designer decide them and the library never sees them:
//  - object names: Designer makes a repeated or missing name unique, by its own rules;
//  - "geometry": Designer and the form writer place and size widgets as they see fit;
//  - notr="false", the default a writer may spell out or leave out;
//  - the text of a <number> as it stands: Qt's reader makes it a number first (QString::toInt,
//    so "abc" or "99999999999" is 0), and that number is the value that counts;
//  - how a widget's own property spells a whole number: " 3 " and "03" are 3 to a number
//    property, and the writers write 3 (item texts count as they stand);
//  - attributes Qt's reader passes over without keeping them: any the format does not define
//    for the element, and those of the strings of a string list;
//  - anything of Qt's own widgets and of layouts.
// Widgets are matched by class and by their order among the widgets of that class in the
// document (a page by its group and its place in it), so values are found again when a name
// changed. Within a widget a value is looked for under its property name wherever it sits:
// in the widget's properties or in any item (a pop-button matrix's "textList" counts as its
// items' "text"). Entries and the strings of string lists are counted (one held twice must
// be there twice); attributes only need to be there once (a string list shares one set among
// its strings), and so does the value of a property a widget or an item holds twice alike.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace FormValues {

struct Value
{
    int line = 0; // line of the element in its document, from 1
    QString path; // element path, e.g. /ui/widget[Form]/widget[combo]/item[2]/property[text]
    QString widgetClass; // the VoCc widget the value belongs to, as the form names it
    QString widgetName; // its object name in that document (may be empty)
    QString property; // property name; "name@attribute" for an attribute of its elements
    QString value;
};

// The counted values of a .ui document (raw file contents: any encoding Qt's XML reader
// detects). A document that cannot be read gives what was read up to the error.
QVector<Value> valuesOf(const QByteArray &ui);

// The values of input that output lacks and that no warning names. A warning names a value
// when it holds the widget's class, its object name in quotes (the name it has in input, or
// the one it got in output: Designer renames a widget without a name or with another's), the
// property (for an attribute, the attribute's name) and the value. A page title's widget is
// its page group.
QVector<Value> unexplainedLosses(const QByteArray &input, const QByteArray &output,
                                 const QStringList &warnings);

// Whether a warning names a value as unexplainedLosses() requires; otherName, when not null,
// is another name the widget goes by.
bool names(const QString &warning, const Value &value, const QString &otherName = QString());

// The widgets values were counted for, each as its class and its name in quotes
// (VoCc::ComboBox "combo"), as a warning names a widget.
QStringList widgetsOf(const QByteArray &ui);

// A value as a message shows it: at most 80 characters, a longer one cut with "...".
QString shownValue(const Value &value);

// "LINE: PATH: CLASS "NAME": property "PROPERTY" lost its value "VALUE"", values cut to 80
// characters.
QString describe(const Value &value);

} // namespace FormValues
