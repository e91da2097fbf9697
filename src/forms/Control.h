#pragma once

#include <functional>
#include <string>

#include "forms/Container.h"
#include "forms/Geometry.h"
#include "forms/Property.h"

namespace forms {

inline constexpr base::Colour kFaceColour{0xF0F0F0};
inline constexpr base::Colour kWindowColour{0xFFFFFF};
inline constexpr base::Colour kTextColour{0x000000};

// What a user can see or use on a form. The form owns it as a member; it registers itself with its container.
// Positions and sizes are twips within the container, font sizes are points of Verdana.
class Control : public PropertyOwner {
public:
    Control(Container& container, std::string name, const Rect& place, int index = kNoIndex);

    static constexpr int kNoIndex = -1;

    virtual const char* kind() const = 0;
    const std::string& name() const { return name_; }
    int index() const { return index_; }  // the number in its array, or kNoIndex
    Container& container() const { return container_; }
    Form& form() const { return container_.form(); }

    void Move(double left, double top);
    void Move(double left, double top, double width, double height);
    // Brings it in front of the others of its container.
    void ZOrder();
    // Makes it the control that gets the keys; raises GotFocus when it was another one.
    void SetFocus();
    // Lets the host redraw at once, within the running routine.
    void Refresh();

    bool visible_to_user() const;  // itself, all it stands on, and the form
    bool enabled_for_user() const;

    double right() const { return Left() + Width(); }
    double bottom() const { return Top() + Height(); }

    void changed() override;
    // Called by the form when the host has drawn it.
    void mark_drawn() { changed_ = false; }

private:
    std::string name_;
    int index_;
    Container& container_;
    bool changed_ = false;

public:
    Property<double> Left;
    Property<double> Top;
    Property<double> Width;
    Property<double> Height;
    Property<bool> Visible{*this, "Visible", true};
    Property<bool> Enabled{*this, "Enabled", true};
    Property<std::string> Tag{*this, "Tag"};
    Property<base::Colour> BackColor{*this, "BackColor", kFaceColour};
    Property<base::Colour> ForeColor{*this, "ForeColor", kTextColour};
    Property<double> FontSize{*this, "FontSize", 8.25};
    Property<bool> FontBold{*this, "FontBold", false};
    Property<int> BorderStyle{*this, "BorderStyle", 0};
    // False: Tab passes it by, as what no user sees and what hands the focus on.
    Property<bool> TabStop{*this, "TabStop", true};
    // What a screen reader says where the text on the control does not say it; empty for the text itself.
    Property<std::string> AccessibleName{*this, "AccessibleName"};
    // True: a screen reader says it when it changes, wherever the keyboard is.
    Property<bool> Spoken{*this, "Spoken", false};
    // Stands beside the pointer when it rests on the control.
    Property<std::string> ToolTipText{*this, "ToolTipText"};

    std::function<void()> Click;
    std::function<void()> GotFocus;
};

}  // namespace forms
