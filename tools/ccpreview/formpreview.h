#pragma once

#include <QImage>
#include <QString>

class QWidget;

// Loads a .ui form through the CommonControls form builder and renders it.
class FormPreview
{
public:
    enum Status {
        Ok = 0,
        UsageError = 1,
        FileError = 2, // missing or unreadable file
        FormatError = 3, // not well-formed XML, or not a form
        ClassError = 4, // a widget class nobody can create
        RenderError = 5, // the image could not be written
    };

    // Loads and lays out the form; on failure errorString() says why.
    Status load(const QString &fileName);
    QImage render() const;
    Status save(const QString &pngFileName);

    QString errorString() const { return m_errorString; }

    // The position and cause of the first XML error of a form file, or an empty text for a
    // well-formed document whose root is <ui>.
    static QString xmlProblem(const QByteArray &contents);
    // A loaded form shown offscreen, laid out at its final size, as a user would see it; at
    // most 4096 pixels each way, from its top left (note then says what was left out).
    static QImage picture(QWidget *form, QString *note);
    // What the user should know about a form that did load (the image shows only part of
    // it), or an empty text.
    QString note() const { return m_note; }

private:
    QString m_fileName;
    QImage m_image;
    QString m_errorString;
    QString m_note;
};
