#include "framework/qt/pictures.h"

#include <QPixmap>

namespace norvane {

QIcon Pictures::find(const std::string &picture) {
    const auto known = loaded_.find(picture);
    if (known != loaded_.end())
        return known->second;
    const auto file = files_.find(picture);
    if (file == files_.end())
        return {};
    return loaded_[picture] = QIcon(QPixmap(file->second));
}

} // namespace norvane
