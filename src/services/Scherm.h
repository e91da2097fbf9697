#pragma once

#include <functional>
#include <string>
#include <utility>

#include "forms/CheckBox.h"
#include "forms/Form.h"
#include "resources/Bericht.h"
#include "services/Foutpad.h"
#include "services/MappenLijst.h"
#include "services/Programma.h"

namespace services {

// A screen of the program: a form that knows the program it belongs to. What every screen does stands here: it is left
// by Escape, by *Terug* and by its close box, and its sort boxes sort.
class Scherm : public forms::Form {
public:
    // The place strings of the routines that a screen has from here.
    struct Plaatsen {
        const char* key_up = "";
        const char* terug = "";
        const char* query_unload = "";
    };

    Scherm(Programma& programma, std::string naam, const forms::Size& inner, const Plaatsen& plaatsen)
        : Form(programma.windows, std::move(naam), inner),
          programma(programma),
          gedeeld(programma.gedeeld),
          plaatsen_(plaatsen) {}

    // Escape leaves the screen.
    void Form_KeyUp(int key_code) override;
    void Form_QueryUnload() override;

    Programma& programma;
    Gedeeld& gedeeld;

    using Bericht = resources::Bericht;
    std::string LeesResString(Bericht bericht) const;

    template <class Body>
    void Foutpad(const std::string& plaats, Body&& body) {
        services::Foutpad(programma, plaats, std::forward<Body>(body));
    }

protected:
    // What is done before the screen is unloaded: shows the main screen.
    virtual void verlaat();
    void cmdTerug_Click();

    // Places a control where no user sees it: the focus sink of every screen.
    void zet_buiten_beeld(forms::Control& control);
    // Half the difference between the screen's and the form's width and height, in whole twips.
    void centreer();

    // Turns the caption of a sort box around, which names what the next click does.
    void wissel_opschrift(forms::CheckBox& keuze) const;
    // The click of a sort box that the settings keep, under the box's name: then fills its list anew.
    void sorteer(const char* plaats, forms::CheckBox& keuze, const std::function<void()>& vul);
    // Fills a list, and gives its sort box the caption of its value. A missing folder is made; as long as the folder
    // is not known, its path being empty, the list stays as it is.
    void toon_mappen(const MappenLijst& lijst, const std::string& map);

private:
    const Plaatsen plaatsen_;
};

}  // namespace services
