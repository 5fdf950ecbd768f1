#include "reports.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

QString findingLine(const QString &file, const Finding &finding)
{
    const QString where =
            finding.line > 0 ? QStringLiteral("%1:%2").arg(file).arg(finding.line) : file;
    return QStringLiteral("%1: %2: %3")
            .arg(where, finding.error ? QStringLiteral("error") : QStringLiteral("warning"),
                 finding.message);
}

} // namespace

QString summaryLine(int forms, int errors, int warnings)
{
    return QStringLiteral("%1 forms checked, %2 errors, %3 warnings")
            .arg(forms)
            .arg(errors)
            .arg(warnings);
}

QString compilerLines(const FormResult &result)
{
    QString text;
    for (const Finding &finding : result.findings)
        text += findingLine(result.file, finding) + QLatin1Char('\n');
    return text;
}

bool writeJUnit(const QString &fileName, const QVector<FormResult> &results, double seconds)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    int failures = 0;
    for (const FormResult &result : results)
        failures += result.count(true) > 0;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    xml.writeStartElement(QStringLiteral("testsuite"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("ccformcheck"));
    xml.writeAttribute(QStringLiteral("tests"), QString::number(results.size()));
    xml.writeAttribute(QStringLiteral("failures"), QString::number(failures));
    xml.writeAttribute(QStringLiteral("errors"), QStringLiteral("0"));
    xml.writeAttribute(QStringLiteral("time"), QString::number(seconds, 'f', 3));
    for (const FormResult &result : results) {
        xml.writeStartElement(QStringLiteral("testcase"));
        xml.writeAttribute(QStringLiteral("classname"), QStringLiteral("ccformcheck"));
        xml.writeAttribute(QStringLiteral("name"), result.file);
        xml.writeAttribute(QStringLiteral("time"), QString::number(result.seconds, 'f', 3));
        QString errors;
        QString warnings;
        for (const Finding &finding : result.findings)
            (finding.error ? errors : warnings) += findingLine(result.file, finding) + '\n';
        if (!errors.isEmpty()) {
            xml.writeStartElement(QStringLiteral("failure"));
            xml.writeAttribute(QStringLiteral("type"), QStringLiteral("error"));
            xml.writeAttribute(QStringLiteral("message"),
                               QStringLiteral("%1 errors").arg(result.count(true)));
            xml.writeCharacters(errors);
            xml.writeEndElement();
        }
        if (!warnings.isEmpty())
            xml.writeTextElement(QStringLiteral("system-out"), warnings);
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return file.error() == QFileDevice::NoError;
}

bool writeContactSheet(const QString &folder, const QVector<FormResult> &results)
{
    QVector<const FormResult *> order;
    int errors = 0;
    int warnings = 0;
    for (const FormResult &result : results) {
        order.append(&result);
        errors += result.count(true);
        warnings += result.count(false);
    }
    const auto rank = [](const FormResult *r) {
        return r->count(true) > 0 ? 0 : r->count(false) > 0 ? 1 : 2;
    };
    std::stable_sort(order.begin(), order.end(), [&](const FormResult *a, const FormResult *b) {
        return rank(a) < rank(b);
    });

    QFile file(QDir(folder).filePath(QStringLiteral("index.html")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return false;
    QTextStream out(&file);
    const QString title = summaryLine(results.size(), errors, warnings);
    out << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">\n<title>"
        << title.toHtmlEscaped() << "</title>\n<style>\n"
        << "body{font-family:sans-serif;margin:16px;background:#f4f4f4}\n"
        << ".form{display:flex;gap:16px;background:#fff;margin:0 0 12px;padding:12px;"
           "border-left:6px solid #3a3}\n"
        << ".form.has-warnings{border-color:#d90}.form.has-errors{border-color:#c22}\n"
        << ".picture{flex:0 0 320px}.picture img{max-width:320px;border:1px solid #ccc}\n"
        << ".none{width:320px;height:120px;background:#ddd;color:#555;display:flex;"
           "align-items:center;justify-content:center;text-align:center}\n"
        << "h2{font-size:15px;margin:0 0 8px;word-break:break-all}\n"
        << "ul{margin:0;padding-left:18px;font-size:13px}li{margin:2px 0}\n"
        << ".error{color:#c22}.warning{color:#a60}.clean{color:#3a3;font-size:13px}\n"
        << "</style></head><body>\n<h1>" << title.toHtmlEscaped() << "</h1>\n";
    for (const FormResult *result : order) {
        static const char *const classes[] = {"has-errors", "has-warnings", "is-clean"};
        out << "<div class=\"form " << classes[rank(result)] << "\">\n<div class=\"picture\">";
        if (!result->picture.isEmpty()) {
            const QString full = QFileInfo(result->picture).fileName().toHtmlEscaped();
            const QString small = QFileInfo(result->thumbnail).fileName().toHtmlEscaped();
            out << "<a href=\"" << full << "\"><img src=\"" << small << "\" alt=\"\"></a>";
        } else {
            out << "<div class=\"none\">no picture: " << result->pictureNote.toHtmlEscaped()
                << "</div>";
        }
        out << "</div>\n<div><h2>" << result->file.toHtmlEscaped() << "</h2>\n";
        if (result->findings.isEmpty())
            out << "<div class=\"clean\">no findings</div>\n";
        else
            out << "<ul>\n";
        // Errors before warnings, each in the order found.
        for (const bool error : {true, false}) {
            for (const Finding &finding : result->findings) {
                if (finding.error != error)
                    continue;
                out << "<li class=\"" << (error ? "error" : "warning") << "\">"
                    << (finding.line > 0 ? QStringLiteral("line %1: ").arg(finding.line)
                                         : QString())
                    << (error ? "error: " : "warning: ") << finding.message.toHtmlEscaped()
                    << "</li>\n";
            }
        }
        if (!result->findings.isEmpty())
            out << "</ul>\n";
        if (!result->picture.isEmpty() && !result->pictureNote.isEmpty())
            out << "<div class=\"clean\">" << result->pictureNote.toHtmlEscaped() << "</div>\n";
        out << "</div>\n</div>\n";
    }
    out << "</body></html>\n";
    out.flush();
    return file.error() == QFileDevice::NoError;
}
