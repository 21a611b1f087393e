// "File > Profiles": chooses, saves as, renames and deletes the profiles of a ProfileDesk. What goes wrong is
// said in a message, and everything stays as it was.
#pragma once

#include <QMenu>
#include <functional>
#include <string>

#include "app/MainWindowParts.h"
#include "app/ProfileDesk.h"
#include "platform/Dialogs.h"
#include "platform/Profile.h"

namespace veerwatch {

class ProfilesMenuQt final {
 public:
  /// What the window does for it.
  struct Does {
    std::function<Profile()> Present;   ///< the profile as it would be written now
    std::function<std::string()> Keep;  ///< writes the one in use; what went wrong, or ""
    std::function<void()> Close;        ///< the user wants another one: closes, or asks whether it may
    std::function<void()> AnotherFile;  ///< the profile in use has another file from now on
  };

  /// `desk` may be null: then there is no such menu. All of them outlive this.
  ProfilesMenuQt(ProfileDesk* desk, QMenu& menu, WindowDialogs& asks, Does does);

  /// The window closes for another reason than a change, or not at all.
  void Stay() const;

  /// Name of the profile in use; "" for the first.
  QString Shown() const;

 private:
  void Fill();
  void FillNames();
  QMenu* Others(const char* name, const QString& text, void (ProfilesMenuQt::*does)(const std::string&),
                bool alsoInUse);
  void Choose(const std::string& name);
  void SaveAs();
  void Rename(const std::string& name);
  void Delete(const std::string& name);
  void Say(const std::string& text) const;
  /// Says what went wrong, else shows what is there now.
  void Done(const ProfileDesk::Trouble& trouble, bool anotherFile);

  ProfileDesk* m_desk;
  QMenu& m_menu;
  WindowDialogs& m_asks;
  Does m_does;
};

}  // namespace veerwatch
