#include <windows.h>

#include <shellapi.h>

#include <QDir>
#include <QFileInfo>

#include "desktop/system/Opener.h"

namespace desktop::system {

namespace {

constexpr INT_PTR kLargestError = 32;  // above it stands a success

const wchar_t* text_or_null(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

}  // namespace

bool open_by_system(const QString& file, const QString& parameters, const QString& folder) {
    const bool is_address = file.contains("://");
    const std::wstring name = (is_address ? file : QDir::toNativeSeparators(file)).toStdWString();
    const std::wstring words = parameters.toStdWString();
    const std::wstring work = QFileInfo(folder).isDir() ? QDir::toNativeSeparators(folder).toStdWString() : L"";
    const HINSTANCE answer =
        ShellExecuteW(GetActiveWindow(), nullptr, name.c_str(), text_or_null(words), text_or_null(work), SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(answer) > kLargestError;
}

}  // namespace desktop::system
