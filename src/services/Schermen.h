#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "forms/Form.h"
#include "forms/Windows.h"

namespace services {

class Programma;

// Makes the screens by their names, so that one screen can open another without knowing it. A name that nobody
// registered is failure 5.
class Schermen {
public:
    using Maker = std::function<std::unique_ptr<forms::Form>(Programma&)>;

    Schermen(Programma& programma, forms::Windows& windows) : programma_(programma), windows_(windows) {}

    void registreer(const std::string& naam, Maker maker) { makers_[naam] = std::move(maker); }

    // The screen of that name, loaded if it was not.
    forms::Form& laad(const std::string& naam);
    void toon(const std::string& naam) { laad(naam).Show(); }

private:
    Programma& programma_;
    forms::Windows& windows_;
    std::map<std::string, Maker> makers_;
};

}  // namespace services
