#pragma once

#include <string>
#include <utility>

#include "forms/CheckBox.h"
#include "forms/Form.h"
#include "services/Foutpad.h"
#include "services/Programma.h"

// A screen of the program: a form that knows the program it belongs to.
class Scherm : public forms::Form {
public:
    Scherm(Programma& programma, std::string naam, const forms::Size& inner)
        : Form(programma.windows, std::move(naam), inner), programma(programma), gedeeld(programma.gedeeld) {}

    Programma& programma;
    Gedeeld& gedeeld;

    // Text of a message by its number.
    std::string LeesResString(int nummer) const;

    template <class Body>
    void Foutpad(const std::string& plaats, Body&& body) {
        ::Foutpad(programma, plaats, std::forward<Body>(body));
    }

protected:
    // Places a control where no user sees it: the focus sink of every screen.
    void zet_buiten_beeld(forms::Control& control);
    // Keeps a box's value in the settings, under the box's name.
    void bewaar_keuze(const forms::CheckBox& keuze);
    // Half the difference between the screen's and the form's width and height, in whole twips.
    void centreer();
};
