#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

// One thing the checker found in a form: at a line of it (0 when no line is known), an error
// (the form is broken or loses values) or a warning (the user should know).
struct Finding
{
    int line = 0;
    bool error = false;
    QString message;
};

// What checking one form gave.
struct FormResult
{
    QString file;
    QVector<Finding> findings;
    QString picture; // the rendered form, a PNG file; empty without one
    QString thumbnail;
    QString pictureNote; // why there is no picture, or what it leaves out
    double seconds = 0;
    qint64 peakKilobytes = 0; // of the worker process, up to this form

    int count(bool errors) const
    {
        int n = 0;
        for (const Finding &finding : findings)
            n += finding.error == errors;
        return n;
    }
    void add(int line, bool error, const QString &message)
    {
        findings.append({line, error, message});
    }

    QJsonObject toJson() const;
    static FormResult fromJson(const QJsonObject &object);
};
