#pragma once

#include <QString>
#include <exception>
#include <string>

namespace deals_desktop {

// What the readers, the rules and the import tell, in Dutch; a text that is not known stays as it is. UTF-8.
QString dutch(const std::string& reason);
// The same of a failure.
QString dutch(const std::exception& failure);

}  // namespace deals_desktop
