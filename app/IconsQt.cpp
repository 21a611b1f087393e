#include "app/IconsQt.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>

// Resources of a static library are linked in only by name, and the name is a global one.
static void LoadIcons() { Q_INIT_RESOURCE(veerwatch); }

namespace veerwatch {

namespace {

/// Sizes [px] to scale from.
constexpr std::array<int, 4> kSizes{24, 48, 96, 192};
/// The line colour in the drawings of the modes.
constexpr const char* kLineColour = "#000000";

QByteArray Drawing(const QString& name) {
  LoadIcons();
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The square drawing in a picture that is `share` times as wide, at its left.
QPixmap Rendered(const QByteArray& drawing, int size, double share = 1.0) {
  QPixmap pixmap(qRound(size * share), size);
  pixmap.fill(Qt::transparent);
  QSvgRenderer renderer(drawing);
  QPainter painter(&pixmap);
  renderer.render(&painter, QRectF(0.0, 0.0, size, size));
  return pixmap;
}

}  // namespace

QIcon ModeIcon(const QString& name, const QColor& off, const QColor& on) {
  const QByteArray drawing = Drawing(name);
  QIcon icon;
  for (const int size : kSizes) {
    const auto coloured = [&drawing](const QColor& colour) {
      return QByteArray(drawing).replace(kLineColour, colour.name().toLatin1());
    };
    icon.addPixmap(Rendered(coloured(off), size, kModeIconShare), QIcon::Normal, QIcon::Off);
    icon.addPixmap(Rendered(coloured(on), size, kModeIconShare), QIcon::Normal, QIcon::On);
  }
  return icon;
}

QIcon ProgramIcon() {
  const QByteArray drawing = Drawing(QStringLiteral("veerwatch"));
  QIcon icon;
  for (const int size : kSizes) {
    icon.addPixmap(Rendered(drawing, size));
  }
  return icon;
}

}  // namespace veerwatch
