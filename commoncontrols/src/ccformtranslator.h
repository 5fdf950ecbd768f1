#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class DomUI;
class DomWidget;
class QWidget;
QT_END_NAMESPACE

namespace VoCc {

struct WidgetSources;

// Translates a form document before the loader builds it, so that every widget is made once,
// with its texts already translated: each translatable <string> and <stringlist> of the
// document (the widgets' properties and attributes, the items of Qt's item widgets and the
// entries of the library's list-like widgets, table rows and columns, actions) is replaced by
// QCoreApplication::translate(form class, text, comment). Texts marked notr="true", and the
// item properties that name data, icons or actions, are left as they are and never reach a
// translator.
//
// When asked to follow language changes, it keeps the source texts of each widget element,
// and watch() gives the widget built from it an object that translates them again whenever
// the widget receives QEvent::LanguageChange.
class FormTranslator
{
public:
    FormTranslator(const QString &context, bool followLanguageChanges);
    ~FormTranslator();
    FormTranslator(const FormTranslator &) = delete;
    FormTranslator &operator=(const FormTranslator &) = delete;

    // Translates the document's widgets in place.
    void translate(DomUI *ui);
    // Called once the loader has built widget from element, its children, items and entries
    // included.
    void watch(const DomWidget *element, QWidget *widget);

private:
    QByteArray m_context;
    bool m_follow;
    QHash<const DomWidget *, WidgetSources *> m_sources;
};

} // namespace VoCc
