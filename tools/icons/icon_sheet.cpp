// SPDX-License-Identifier: Apache-2.0

#include <QBuffer>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Theme
{
    const char* name;
    QColor surface;
    QColor text;
    QColor disc;
    // The words of a drawing and their inks, as the build sets them for the normal form.
    const char* inks[5][2];
};

const Theme Themes[] = {
    {"light",
     "#ffffff",
     "#5b6470",
     "#e6e6e6",
     {{"currentColor", "#4a4f57"},
      {"currentFill2", "#cbd2db"},
      {"currentFill", "#e3e7ed"},
      {"currentAccent", "#097bf8"},
      {"currentOn", "#ffffff"}}},
    {"dark",
     "#262a31",
     "#a0a9b6",
     "#404349",
     {{"currentColor", "#d5d8dc"},
      {"currentFill2", "#4a5260"},
      {"currentFill", "#3a414c"},
      {"currentAccent", "#4da3ff"},
      {"currentOn", "#ffffff"}}},
};

constexpr QColor Accent(0x09, 0x7b, 0xf8);
constexpr int CellWidth = 132;
constexpr int CellHeight = 116;
constexpr int Columns = 10;
constexpr int Grid = 24;
constexpr int GlyphSize = 22;
constexpr int DiscSize = 40;

QImage render(QByteArray drawing, const Theme& theme, const QSize& size, bool white)
{
    for (const auto& ink : theme.inks)
        drawing.replace(ink[0], white ? "#ffffff" : ink[1]);
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(size);
    return reader.read();
}

// A drawing as it is shown: one of the small grid on its grey and its filled disc, a larger one at its size.
void drawCell(QPainter& painter, const QRect& cell, const QByteArray& drawing, const Theme& theme,
              qreal ratio)
{
    QByteArray copy = drawing;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    const QSize natural = QImageReader(&buffer, "svg").size();
    const auto put = [&](const QPoint& centre, const QSize& size, bool white) {
        QImage image = render(drawing, theme, size * ratio, white);
        image.setDevicePixelRatio(ratio);
        painter.drawImage(centre - QPoint(size.width(), size.height()) / 2, image);
    };
    const QPoint centre(cell.center().x(), cell.top() + 50);
    // The open part of a two-picture drawing is transparent: a panel shows the accent behind it.
    if (natural == QSize(96, 96))
        painter.fillRect(QRect(centre - QPoint(34, 24), QSize(68, 43)), Accent);
    if (natural.width() > Grid) {
        put(centre,
            natural.width() > CellWidth - 6 ? natural.scaled(CellWidth - 6, 96, Qt::KeepAspectRatio)
                                            : natural,
            false);
        return;
    }
    painter.setPen(Qt::NoPen);
    const QPoint left = centre - QPoint(24, 0);
    const QPoint right = centre + QPoint(24, 0);
    painter.setBrush(theme.disc);
    painter.drawEllipse(left, DiscSize / 2, DiscSize / 2);
    painter.setBrush(Accent);
    painter.drawEllipse(right, DiscSize / 2, DiscSize / 2);
    put(left, {GlyphSize, GlyphSize}, false);
    put(right, {GlyphSize, GlyphSize}, true);
}

bool writeSheet(const QStringList& files, const Theme& theme, const QString& target, qreal ratio)
{
    const int rows = int((files.size() + Columns - 1) / Columns);
    QImage sheet(QSize(Columns * CellWidth, rows * CellHeight) * ratio, QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(theme.surface);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(9);
    painter.setFont(font);
    for (int i = 0; i < files.size(); ++i) {
        QFile file(files.at(i));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(files.at(i)));
            return false;
        }
        const QRect cell(i % Columns * CellWidth, i / Columns * CellHeight, CellWidth, CellHeight);
        drawCell(painter, cell, file.readAll(), theme, ratio);
        painter.setPen(theme.text);
        painter.drawText(cell.adjusted(2, CellHeight - 16, -2, 0), Qt::AlignHCenter,
                         QFileInfo(files.at(i)).completeBaseName());
    }
    painter.end();
    return sheet.save(target);
}

} // namespace

/// Draws all icons of folders on one sheet, light and dark, as they are shown in the window.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Draws the icons of folders on a sheet, light and dark."_s);
    parser.addHelpOption();
    const QCommandLineOption scale(u"scale"_s, u"Pixels for one of the window, 1 at first."_s, u"n"_s,
                                   u"1"_s);
    parser.addOption(scale);
    parser.addPositionalArgument(u"target"_s, u"Where the sheets go; -light.png and -dark.png are added."_s);
    parser.addPositionalArgument(u"folders"_s, u"Folders with drawings."_s, u"folder..."_s);
    parser.process(app);
    QStringList arguments = parser.positionalArguments();
    if (arguments.size() < 2)
        parser.showHelp(2);
    const QString target = arguments.takeFirst();
    QStringList files;
    for (const QString& folder : std::as_const(arguments)) {
        const QFileInfoList found = QDir(folder).entryInfoList({u"*.svg"_s}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : found)
            files << file.filePath();
    }
    if (files.isEmpty()) {
        std::fprintf(stderr, "no drawings in %s\n", qPrintable(arguments.join(u", "_s)));
        return 1;
    }
    for (const Theme& theme : Themes) {
        const QString file = target + u'-' + QLatin1String(theme.name) + u".png"_s;
        if (!writeSheet(files, theme, file, parser.value(scale).toDouble())) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
