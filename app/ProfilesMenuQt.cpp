#include "app/ProfilesMenuQt.h"

#include <QAction>
#include <QTimer>
#include <optional>
#include <utility>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

std::string Title() { return Tr("Profiles"); }

/// A name as a menu shows it, where "&" marks a letter.
QString Captioned(const std::string& name) {
  return QString::fromStdString(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString Named(const char* what, const std::string& name) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(what), QString::fromStdString(name));
}

}  // namespace

ProfilesMenuQt::ProfilesMenuQt(ProfileDesk* desk, QMenu& menu, WindowDialogs& asks, Does does)
    : m_desk(desk), m_menu(menu), m_asks(asks), m_does(std::move(does)) {
  m_menu.menuAction()->setVisible(m_desk != nullptr);
  if (m_desk == nullptr) {
    return;
  }
  QObject::connect(&m_menu, &QMenu::aboutToShow, &m_menu, [this] { Fill(); });
  Fill();
}

void ProfilesMenuQt::Stay() const {
  if (m_desk != nullptr) {
    m_desk->Stay();
  }
}

QString ProfilesMenuQt::Shown() const {
  return m_desk == nullptr || m_desk->First() ? QString() : QString::fromStdString(m_desk->Name());
}

void ProfilesMenuQt::Fill() {
  // Submenus are children that clear() leaves.
  for (QMenu* old : m_menu.findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
    old->deleteLater();
    old->setObjectName(QString());
  }
  m_menu.clear();
  FillNames();
  m_menu.addSeparator();
  QAction* saveAs = m_menu.addAction(TrQ("Save &As..."));
  saveAs->setObjectName(QStringLiteral("mnuFileProfilesSaveAs"));
  QObject::connect(saveAs, &QAction::triggered, &m_menu, [this] { SaveAs(); });
  Others("mnuFileProfilesRename", TrQ("&Rename"), &ProfilesMenuQt::Rename, true);
  Others("mnuFileProfilesDelete", TrQ("&Delete"), &ProfilesMenuQt::Delete, false);
}

void ProfilesMenuQt::FillNames() {
  for (const std::string& name : m_desk->Names()) {
    QAction* action = m_menu.addAction(Captioned(name));
    action->setObjectName(Named("mnuFileProfile", name));
    action->setCheckable(true);
    action->setChecked(name == m_desk->Name());
    // Filled anew, the menu takes the action away, which is the one that calls.
    QObject::connect(action, &QAction::triggered, &m_menu,
                     [this, name] { QTimer::singleShot(0, &m_menu, [this, name] { Choose(name); }); });
  }
}

QMenu* ProfilesMenuQt::Others(const char* menuName, const QString& text,
                              void (ProfilesMenuQt::*does)(const std::string&), bool alsoInUse) {
  QMenu* menu = m_menu.addMenu(text);
  menu->setObjectName(QLatin1String(menuName));
  for (const std::string& name : m_desk->Names()) {
    if (name == m_desk->FirstName() || (!alsoInUse && name == m_desk->Name())) {
      continue;
    }
    QAction* action = menu->addAction(Captioned(name) + QStringLiteral("..."));
    action->setObjectName(Named(menuName, name));
    QObject::connect(action, &QAction::triggered, &m_menu, [this, name, does] { (this->*does)(name); });
  }
  menu->setEnabled(!menu->isEmpty());
  return menu;
}

void ProfilesMenuQt::Say(const std::string& text) const { m_asks.Inform(Title(), text); }

void ProfilesMenuQt::Done(const ProfileDesk::Trouble& trouble, bool anotherFile) {
  if (trouble) {
    Say(*trouble);
  } else if (anotherFile) {
    m_does.AnotherFile();
  }
  // Not within the call of an action that would go.
  QTimer::singleShot(0, &m_menu, [this] { Fill(); });
}

void ProfilesMenuQt::Choose(const std::string& name) {
  if (name == m_desk->Name()) {
    Fill();
    return;
  }
  if (const auto trouble = m_desk->Ask(name)) {
    Done(trouble, false);
    return;
  }
  if (const std::string failure = m_does.Keep(); !failure.empty()) {
    m_desk->Stay();
    Done(Tr("The settings could not be saved, so they stay in use:") + "\r" + failure, false);
    return;
  }
  Fill();
  m_does.Close();
}

void ProfilesMenuQt::SaveAs() {
  m_asks.AskText(Title(), Tr("Name of the new profile, with the settings as they are now"), "",
                 [this](const std::optional<std::string>& name) {
                   if (name) {
                     const auto trouble = m_desk->SaveAs(*name, m_does.Present());
                     Done(trouble, true);
                   }
                 });
}

void ProfilesMenuQt::Rename(const std::string& name) {
  m_asks.AskText(Title(), Filled(Tr("New name of the profile %1"), {name}), name,
                 [this, name](const std::optional<std::string>& wanted) {
                   if (wanted && *wanted != name) {
                     const bool inUse = name == m_desk->Name();
                     Done(m_desk->Rename(name, *wanted), inUse);
                   }
                 });
}

void ProfilesMenuQt::Delete(const std::string& name) {
  m_asks.WarnYesNo(Title(), Filled(Tr("Delete the profile %1? Its settings are gone then."), {name}),
                   [this, name](bool yes) {
                     if (yes) {
                       Done(m_desk->Delete(name), false);
                     }
                   });
}

}  // namespace veerwatch
