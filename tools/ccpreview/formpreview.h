#pragma once

#include <QImage>
#include <QString>

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
    // What the user should know about a form that did load (the image shows only part of
    // it), or an empty text.
    QString note() const { return m_note; }

private:
    QString m_fileName;
    QImage m_image;
    QString m_errorString;
    QString m_note;
};
