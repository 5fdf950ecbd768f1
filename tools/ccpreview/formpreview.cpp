#include "formpreview.h"

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QScopedPointer>
#include <QWidget>
#include <QXmlStreamReader>

namespace {

// The position of the first XML error, or an empty text for a well-formed document whose
// root is <ui>.
QString checkXml(const QByteArray &contents)
{
    QXmlStreamReader reader(contents);
    bool sawRoot = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && !sawRoot) {
            sawRoot = true;
            if (reader.name() != QLatin1String("ui"))
                return QStringLiteral("the root element is <%1>, not <ui>").arg(reader.name());
        }
    }
    if (reader.hasError()) {
        return QStringLiteral("line %1, column %2: %3")
                .arg(reader.lineNumber())
                .arg(reader.columnNumber())
                .arg(reader.errorString());
    }
    return sawRoot ? QString() : QStringLiteral("the document is empty");
}

} // namespace

FormPreview::Status FormPreview::load(const QString &fileName)
{
    m_fileName = fileName;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_errorString = QStringLiteral("cannot open %1: %2").arg(fileName, file.errorString());
        return FileError;
    }
    const QByteArray contents = file.readAll();
    const QString xmlError = checkXml(contents);
    if (!xmlError.isEmpty()) {
        m_errorString = QStringLiteral("%1 is not a form: %2").arg(fileName, xmlError);
        return FormatError;
    }

    VoCc::FormBuilder builder;
    QBuffer buffer;
    buffer.setData(contents);
    buffer.open(QIODevice::ReadOnly);
    QScopedPointer<QWidget> form(builder.load(&buffer));
    if (!form) {
        m_errorString = QStringLiteral("cannot load %1: %2").arg(fileName, builder.errorString());
        return FormatError;
    }
    if (!builder.unknownClassNames().isEmpty()) {
        m_errorString =
                QStringLiteral("%1 uses unknown widget classes: %2")
                        .arg(fileName, builder.unknownClassNames().join(QStringLiteral(", ")));
        return ClassError;
    }

    // Shown (offscreen), the form gets its layouts activated and its final size, as a user
    // would see it.
    form->setAttribute(Qt::WA_DontShowOnScreen);
    form->show();
    QApplication::processEvents();
    form->resize(form->size().expandedTo(form->minimumSizeHint()));
    QApplication::processEvents();
    m_image = form->grab().toImage();
    return Ok;
}

QImage FormPreview::render() const { return m_image; }

FormPreview::Status FormPreview::save(const QString &pngFileName)
{
    if (m_image.isNull()) {
        m_errorString = QStringLiteral("%1 renders as an empty image").arg(m_fileName);
        return RenderError;
    }
    if (!m_image.save(pngFileName, "PNG")) {
        m_errorString = QStringLiteral("cannot write %1").arg(pngFileName);
        return RenderError;
    }
    return Ok;
}
