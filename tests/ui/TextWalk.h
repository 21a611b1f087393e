// Whether every text that is shown goes through the translation. While a walk lives, each translated text has
// letters of another script; a word of English letters that a window holds or paints is one that does not.
// What a widget keeps as a picture is not seen while it shows that: look at what the picture is composed of.
#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTabWidget>
#include <QTextEdit>
#include <QWidget>
#include <array>
#include <set>
#include <string>
#include <system_error>

#include "platform/Language.h"
#include "tests/support/QueuedDialogs.h"

namespace veerwatch {

/// Notes the texts that are painted on it, and shows nothing.
class PaintedTexts final : public QPaintDevice {
 public:
  explicit PaintedTexts(QSize size) : m_size(size), m_engine(m_texts) {}

  QPaintEngine* paintEngine() const override { return &m_engine; }
  const QStringList& Texts() const { return m_texts; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    constexpr int kDotsPerInch = 96;
    switch (metric) {
      case PdmWidth:
        return m_size.width();
      case PdmHeight:
        return m_size.height();
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return kDotsPerInch;
      case PdmDevicePixelRatio:
        return 1;
      default:
        return QPaintDevice::metric(metric);
    }
  }

 private:
  class Engine final : public QPaintEngine {
   public:
    explicit Engine(QStringList& texts) : QPaintEngine(AllFeatures), m_texts(texts) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
    void drawImage(const QRectF& /*to*/, const QImage& /*image*/, const QRectF& /*from*/,
                   Qt::ImageConversionFlags /*flags*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawTextItem(const QPointF& /*at*/, const QTextItem& item) override { m_texts << item.text(); }
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    Type type() const override { return User; }

   private:
    QStringList& m_texts;
  };

  QSize m_size;
  QStringList m_texts;
  mutable Engine m_engine;
};

class TextWalk {
 public:
  TextWalk() { SetTranslation(&TextWalk::Foreign); }
  ~TextWalk() { SetTranslation(nullptr); }
  TextWalk(const TextWalk&) = delete;
  TextWalk& operator=(const TextWalk&) = delete;

  /// Looks at every window that is open, with all that is in it.
  void LookAtAll() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      LookAt(*window);
      for (QWidget* part : window->findChildren<QWidget*>()) {
        LookAt(*part);
      }
    }
  }

  /// Looks at what was told and asked.
  void LookAt(const QueuedDialogs& dialogs) {
    for (const auto* asked : {&dialogs.Questions, &dialogs.Messages, &dialogs.Warnings}) {
      for (const auto& each : *asked) {
        Look("a question's title", each.Title);
        Look("a question", each.Text);
      }
    }
    for (const auto& each : dialogs.FileQuestions) {
      Look("a file question's title", each.Title);
      Look("its filter", each.Filter);
    }
    for (const auto& each : dialogs.FileDialogs) {
      Look("a file dialog's filter", each.Title);
    }
  }

  /// Looks at one widget without what is in it.
  void LookAt(QWidget& widget) {
    if (IsOfQt(widget)) {
      return;
    }
    const QString where = widget.window()->objectName() + QLatin1Char('/') + widget.objectName() +
                          QLatin1Char('(') + QLatin1String(widget.metaObject()->className()) +
                          QStringLiteral(") ");
    for (const char* property :
         {"toolTip", "accessibleName", "accessibleDescription", "whatsThis", "placeholderText"}) {
      Look(where + QLatin1String(property), widget.property(property).toString());
    }
    if (widget.isWindow()) {
      Look(where + QStringLiteral("title"), widget.windowTitle());
    }
    LookAtParts(widget, where);
    if (IsContent(widget)) {
      return;
    }
    for (const char* property : {"text", "title", "prefix", "suffix", "format", "plainText"}) {
      Look(where + QLatin1String(property), widget.property(property).toString());
    }
    if (widget.isVisible()) {
      PaintedTexts painted(widget.size());
      widget.render(&painted, QPoint(), QRegion(), QWidget::RenderFlags());
      for (const QString& text : painted.Texts()) {
        Look(where + QStringLiteral("painted"), text);
      }
    }
  }

  /// A further word that is the same in every language: a name that a test has given.
  void Allow(const char* name) { m_allowed.insert(QLatin1String(name)); }

  void Look(const std::string& where, const std::string& text) {
    Look(QString::fromStdString(where), QString::fromStdString(text));
  }

  /// What is not translated, a line each; "" for nothing.
  std::string Found() const {
    std::string lines;
    for (const std::string& line : m_bare) {
      lines += line + "\n";
    }
    return lines;
  }
  /// How many texts were looked at.
  int Looked() const { return m_looked; }

 private:
  /// `source` in letters of another script; what Qt puts into places stays.
  static std::string Foreign(const char* source) {
    constexpr char16_t kSmall = 0x0430;
    constexpr char16_t kCapital = 0x0410;
    QString text = QString::fromUtf8(source);
    for (qsizetype i = 0; i < text.size(); ++i) {
      const char16_t c = text.at(i).unicode();
      if (i > 0 && text.at(i - 1) == QLatin1Char('%')) {
        continue;
      }
      if (c >= u'a' && c <= u'z') {
        text[i] = QChar(static_cast<char16_t>(kSmall + (c - u'a')));
      } else if (c >= u'A' && c <= u'Z') {
        text[i] = QChar(static_cast<char16_t>(kCapital + (c - u'A')));
      }
    }
    return text.toStdString();
  }

  /// The first word of English letters that is no name; "" for none.
  QString Bare(QString text) const {
    static const QSet<QString> kNames{// The program, languages, and what Qt's own translation brings.
                                      "Veerwatch", "English", "Deutsch", "OK", "Cancel", "Yes", "No",
                                      // Sentences, talkers, protocols and other abbreviations.
                                      "NMEA", "APB", "RMB", "RMC", "HSC", "XTE", "BWC", "MWV", "MWD", "VWR",
                                      "VWT", "VHW", "VTG", "HDG", "HDM", "HDT", "HVM", "THS", "EC", "GP",
                                      "HC", "II", "WI", "TCP", "UDP", "USB", "FTDI", "nmea",
                                      // Units.
                                      "kn", "nm", "min"};
    // Where something leads.
    static const QRegularExpression kPath(QStringLiteral("\\S*/\\S*"));
    static const QRegularExpression kWord(QStringLiteral("[A-Za-z]{2,}"));
    text.remove(QLatin1Char('&')).remove(kPath);
    // The system's own words, in the desktop's language.
    for (const std::errc error : {std::errc::no_such_file_or_directory, std::errc::not_a_directory}) {
      text.remove(QString::fromStdString(std::make_error_code(error).message()));
    }
    for (auto words = kWord.globalMatch(text); words.hasNext();) {
      const QString word = words.next().captured();
      if (!kNames.contains(word) && !m_allowed.contains(word)) {
        return word;
      }
    }
    return {};
  }

  /// Whether the widget is a part that Qt makes and names.
  static bool IsOfQt(const QWidget& widget) {
    return widget.objectName().startsWith(QLatin1String("Scroll"));
  }

  /// Whether the widget, or what it is a part of, shows what was typed, came or leaves.
  static bool IsContent(const QWidget& widget) {
    static const QSet<QString> kContents{"lstNmeaData",   "lstPilotData",   "lblPilotSentences",
                                         "lblNmeaDevice", "lblPilotDevice", "txtManual",
                                         "lstManual"};
    const QWidget* parent = widget.parentWidget();
    return qobject_cast<const QLineEdit*>(&widget) != nullptr || kContents.contains(widget.objectName()) ||
           (parent != nullptr && kContents.contains(parent->objectName()));
  }

  void Look(const QString& where, const QString& text) {
    if (!Bare(text).isEmpty()) {
      m_bare.insert((where + QStringLiteral(": ") + text).toStdString());
    }
    m_looked += text.isEmpty() ? 0 : 1;
  }

  void LookAtParts(const QWidget& widget, const QString& where) {
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
      for (int i = 0; i < combo->count(); ++i) {
        Look(where + QStringLiteral("item"), combo->itemText(i));
        Look(where + QStringLiteral("item's tip"), combo->itemData(i, Qt::ToolTipRole).toString());
      }
    }
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        Look(where + QStringLiteral("tab"), tabs->tabText(i));
        Look(where + QStringLiteral("tab's tip"), tabs->tabToolTip(i));
      }
    }
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget);
        list != nullptr && list->model() != nullptr && !IsContent(widget)) {
      for (int i = 0; i < list->model()->rowCount(); ++i) {
        Look(where + QStringLiteral("row"), list->model()->index(i, 0).data().toString());
        Look(where + QStringLiteral("row's tip"),
             list->model()->index(i, 0).data(Qt::ToolTipRole).toString());
      }
    }
    for (const QAction* action : widget.actions()) {
      Look(where + action->objectName() + QStringLiteral(" command"), action->text());
      Look(where + action->objectName() + QStringLiteral(" tip"), action->toolTip());
      Look(where + action->objectName() + QStringLiteral(" status tip"), action->statusTip());
    }
  }

  std::set<std::string> m_bare;
  QSet<QString> m_allowed;
  int m_looked = 0;
};

}  // namespace veerwatch
