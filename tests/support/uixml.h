#pragma once

// Pieces of .ui text for the forms a test writes.

#include <QString>

namespace CcTest {

// A minimal .ui document whose top level is a QWidget named "Form" holding bodyXml.
inline QString formXml(const QString &bodyXml, const QString &customWidgetsXml = QString())
{
    QString xml = QStringLiteral(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<ui version=\"4.0\">\n"
            " <class>Form</class>\n"
            " <widget class=\"QWidget\" name=\"Form\">\n"
            "  <property name=\"geometry\">\n"
            "   <rect><x>0</x><y>0</y><width>640</width><height>480</height></rect>\n"
            "  </property>\n");
    xml += bodyXml;
    xml += QStringLiteral(" </widget>\n");
    if (!customWidgetsXml.isEmpty())
        xml += QStringLiteral(" <customwidgets>\n") + customWidgetsXml
                + QStringLiteral(" </customwidgets>\n");
    xml += QStringLiteral(" <resources/>\n <connections/>\n</ui>\n");
    return xml;
}

inline QString widgetXml(const char *className, const char *name, const QString &inner = QString())
{
    return QStringLiteral("<widget class=\"%1\" name=\"%2\">%3</widget>\n")
            .arg(QLatin1String(className), QLatin1String(name), inner);
}

// A property of a simple kind ("string", "number"...); a string may be marked untranslated.
inline QString propertyXml(const char *name, const char *value, const char *kind = "string",
                           bool untranslated = false)
{
    return QStringLiteral("<property name=\"%1\"><%3%4>%2</%3></property>")
            .arg(QLatin1String(name), QLatin1String(value), QLatin1String(kind),
                 untranslated ? QStringLiteral(" notr=\"true\"") : QString());
}

inline QString itemXml(const QString &properties)
{
    return QStringLiteral("<item>%1</item>").arg(properties);
}

// The page group's declaration as Designer's widget box writes it: pages go in through addPage.
inline QString pageGroupDeclaration()
{
    return QStringLiteral("<customwidget><class>VoCc::DrawbackBoxGroup</class><extends>QWidget"
                          "</extends><addpagemethod>addPage</addpagemethod></customwidget>");
}

} // namespace CcTest
