#include "desktop/system/PathNames.h"

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"

namespace desktop::system {

QString path_to_qt(const std::string& path) {
    try {
        return QString::fromStdString(platform::bytes_of(platform::find_case_blind(path)));
    } catch (const base::Fout&) {
        return QString::fromStdString(platform::name_bytes(path));
    }
}

std::string path_from_qt(const QString& path) {
    return platform::path_text(platform::path_of(path.toStdString()).make_preferred());
}

}  // namespace desktop::system
