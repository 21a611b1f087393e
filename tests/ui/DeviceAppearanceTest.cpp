// What the dialog that chooses a device looks like, judged by its pixels. Each grab is kept as a picture
// beside the test program.

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <string>

#include "app/ThemeQt.h"
#include "platform/PortNames.h"
#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class DeviceAppearance : public OptionsTester, public testing::WithParamInterface<const char*> {
 public:
  DeviceAppearance() {
    const std::string palette = GetParam();
    if (palette == "night") {
      WearNightColours(true);
    } else {
      QApplication::setPalette(palette == "dark" ? DarkPalette() : QPalette(QColor(0xef, 0xef, 0xef)));
    }
  }
  ~DeviceAppearance() override {
    Window.reset();
    WearNightColours(false);
    QApplication::setPalette(m_palette);
  }

 private:
  QPalette m_palette = QApplication::palette();
};

TEST_P(DeviceAppearance, EveryTextIsWholeAndStandsOut) {
  NamePort(Store, 1, "/dev/ttyUSB0?baud=38400, tcp://192.168.1.1:2000");
  NamePort(Store, 2, "udp://192.168.1.255:2000?broadcast");
  Finder.Plugged = {
      {"/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0", "FT232R USB UART", "A50285BI"},
      {"/dev/ttyUSB1", "CP2102 USB to UART Bridge Controller", "0001"}};
  Start(frmOptions::Input);
  Click("cmdNmeaDevice");
  auto* dialog = Window->findChild<QDialog*>(QStringLiteral("dlgDevice"));
  ASSERT_NE(dialog, nullptr);
  auto& entry = *dialog->findChild<QLineEdit*>(QStringLiteral("txtDevice"));
  entry.setText(QStringLiteral(
      "/dev/a-device-with-a-long-name-that-is-not-there, tcp://a-gateway-with-a-long-name.local:70000"));
  QApplication::processEvents();
  KeepPicture(dialog->grab().toImage(), QStringLiteral("device-") + QLatin1String(GetParam()));
  EXPECT_FALSE(dialog->findChild<QPushButton*>(QStringLiteral("cmdDeviceOk"))->isEnabled());
  int seen = 0;
  for (QLabel* label : dialog->findChildren<QLabel*>()) {
    if (!label->isVisible() || label->text().isEmpty()) {
      continue;
    }
    ++seen;
    const std::string text = label->text().toStdString();
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << text;
    EXPECT_TRUE(dialog->rect().contains(label->geometry())) << text;
    EXPECT_GE(InkContrast(label->grab().toImage()), 4.0) << text;
  }
  EXPECT_EQ(seen, 3);
  auto& list = *dialog->findChild<QListWidget*>(QStringLiteral("lstDevices"));
  EXPECT_GE(InkContrast(list.grab().toImage()), 4.0);
  ASSERT_EQ(list.count(), 4);
  EXPECT_GT(list.visualItemRect(list.item(0)).height(), list.visualItemRect(list.item(1)).height())
      << "a long one has two lines";
  EXPECT_LT(list.geometry().bottom(), entry.geometry().top());
  EXPECT_GE(InkContrast(entry.grab().toImage()), 4.0);
}

INSTANTIATE_TEST_SUITE_P(In, DeviceAppearance, testing::Values("light", "dark", "night"),
                         [](const testing::TestParamInfo<const char*>& palette) {
                           return std::string(palette.param);
                         });

}  // namespace
}  // namespace veerwatch
