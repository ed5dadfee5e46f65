#pragma once

#include <QIcon>
#include <QString>

#include <map>
#include <string>

namespace norvane {

/// The application's pictures by name, each loaded when it is first asked for and shared from then
/// on.
class Pictures {
  public:
    /// `file` is a path or a resource; nothing is loaded yet.
    void name(const std::string &picture, const QString &file) { files_[picture] = file; }

    /// A null icon when no picture bears the name.
    QIcon find(const std::string &picture);

  private:
    std::map<std::string, QString> files_;
    std::map<std::string, QIcon> loaded_;
};

} // namespace norvane
