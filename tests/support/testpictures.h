#pragma once

#include <QtGui>

namespace CcTest {

// A red and a blue 16x16 PNG in a temporary folder.
struct TestPictures
{
    QString write(const QColor &color, const QString &name)
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(color);
        const QString path = dir.filePath(name);
        return pixmap.save(path, "PNG") ? path : QString();
    }
    QTemporaryDir dir;
    const QString red = write(Qt::red, QStringLiteral("red.png"));
    const QString blue = write(Qt::blue, QStringLiteral("blue.png"));
};

} // namespace CcTest
