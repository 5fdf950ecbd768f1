#include "formpreview.h"

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QScopedPointer>
#include <QWidget>
#include <QXmlStreamReader>

namespace {

// The image shows at most this many pixels each way, from the form's top left: a form larger
// than any screen (a row of thousands of buttons, an entry of millions of characters) would
// otherwise take an image of gigabytes.
const int maximumImageSide = 4096;

// The position of the first NUL byte of an 8-bit encoded document, or an empty text. The XML
// reader reports one as an unexpected character that does not print.
QString nulPosition(const QByteArray &contents)
{
    const int nul = contents.indexOf('\0');
    // UTF-16 and UTF-32 documents have NUL bytes in their first characters already.
    if (nul < 4 || contents.left(4).contains('\0'))
        return QString();
    return QStringLiteral("line %1, column %2")
            .arg(contents.left(nul).count('\n') + 1)
            .arg(nul - contents.lastIndexOf('\n', nul - 1));
}

} // namespace

QString FormPreview::xmlProblem(const QByteArray &contents)
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
        const QString nul = nulPosition(contents);
        if (!nul.isEmpty())
            return QStringLiteral("%1: a NUL byte").arg(nul);
        return QStringLiteral("line %1, column %2: %3")
                .arg(reader.lineNumber())
                .arg(reader.columnNumber())
                .arg(reader.errorString());
    }
    return sawRoot ? QString() : QStringLiteral("the document is empty");
}

FormPreview::Status FormPreview::load(const QString &fileName)
{
    m_fileName = fileName;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_errorString = QStringLiteral("cannot open %1: %2").arg(fileName, file.errorString());
        return FileError;
    }
    const QByteArray contents = file.readAll();
    const QString xmlError = xmlProblem(contents);
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

    m_image = picture(form.data(), &m_note);
    return Ok;
}

QImage FormPreview::picture(QWidget *form, QString *note)
{
    // Shown (offscreen), the form gets its layouts activated and its final size, as a user
    // would see it.
    form->setAttribute(Qt::WA_DontShowOnScreen);
    form->show();
    QApplication::processEvents();
    form->resize(form->size().expandedTo(form->minimumSizeHint()));
    QApplication::processEvents();
    const QSize size = form->size();
    const QSize shown = size.boundedTo(QSize(maximumImageSide, maximumImageSide));
    note->clear();
    if (shown != size) {
        *note = QStringLiteral("the form is %1 x %2 pixels; the image shows its top left "
                               "%3 x %4")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(shown.width())
                        .arg(shown.height());
    }
    return form->grab(QRect(QPoint(0, 0), shown)).toImage();
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
