// Draws an SVG as a square PNG: draw_icon SVG SIZE PNG. Run while building, to make the icons to install.
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[]) {
  constexpr int kArguments = 4;
  if (argc != kArguments) {
    std::fprintf(stderr, "usage: %s SVG SIZE PNG\n", argv[0]);
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  const int size = QString::fromLocal8Bit(argv[2]).toInt();
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  {
    QPainter painter(&picture);
    drawing.render(&painter);
  }
  if (!drawing.isValid() || !picture.save(QString::fromLocal8Bit(argv[3]))) {
    std::fprintf(stderr, "%s cannot be drawn to %s\n", argv[1], argv[3]);
    return 1;
  }
  return 0;
}
