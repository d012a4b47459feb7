// Renders the application icon from its SVG at build time: the PNG sizes of the hicolor theme
// for Linux desktops, and the .icns of the macOS bundle (PNG images in Apple's container, the
// tile inset on Apple's icon grid so it sits among other apps' icons).
//
//   quillforge-icon-render <logo.svg> <hicolor folder> <icon name> <file.icns> <size>...

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QtEndian>

#include <cstdio>

namespace {

QImage render(QSvgRenderer& svg, int size, qreal scale)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const qreal side = size * scale;
    svg.render(&painter, QRectF((size - side) / 2, (size - side) / 2, side, side));
    painter.end();
    return image;
}

QByteArray png(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

bool write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        std::fprintf(stderr, "Cannot write %s: %s\n", qUtf8Printable(path), qUtf8Printable(file.errorString()));
        return false;
    }
    return true;
}

void appendBigEndian(QByteArray& bytes, quint32 value)
{
    char buffer[4];
    qToBigEndian(value, buffer);
    bytes.append(buffer, 4);
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 6) {
        std::fprintf(stderr,
                     "usage: quillforge-icon-render <logo.svg> <hicolor folder> <icon name> <file.icns> <size>...\n");
        return 2;
    }
    QSvgRenderer svg(arguments.at(1));
    if (!svg.isValid()) {
        std::fprintf(stderr, "Cannot read %s\n", qUtf8Printable(arguments.at(1)));
        return 1;
    }

    // The artwork is a full-bleed tile: at theme sizes it fills the square as it is.
    for (const QString& sizeText : arguments.mid(5)) {
        const int size = sizeText.toInt();
        const QString path = QStringLiteral("%1/%2x%2/apps/%3.png").arg(arguments.at(2)).arg(size).arg(arguments.at(3));
        if (!write(path, png(render(svg, size, 1.0))))
            return 1;
    }

    // Apple's grid puts an 824-point tile on a 1024-point canvas; ours covers 240 of 256.
    const qreal appleScale = (824.0 / 1024.0) / (240.0 / 256.0);
    struct Entry {
        const char* type;
        int pixels;
    };
    const Entry entries[] = {{"icp4", 16},   {"icp5", 32}, {"icp6", 64}, {"ic07", 128}, {"ic08", 256}, {"ic09", 512},
                             {"ic10", 1024}, {"ic11", 32}, {"ic12", 64}, {"ic13", 256}, {"ic14", 512}};
    QByteArray body;
    for (const Entry& entry : entries) {
        const QByteArray data = png(render(svg, entry.pixels, appleScale));
        body.append(entry.type, 4);
        appendBigEndian(body, quint32(data.size() + 8));
        body.append(data);
    }
    QByteArray icns("icns");
    appendBigEndian(icns, quint32(body.size() + 8));
    icns.append(body);
    return write(arguments.at(4), icns) ? 0 : 1;
}
