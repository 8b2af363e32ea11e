#pragma once

#include "zilvo/platform/hosting/Input.h"
#include "zilvo/platform/widgets/Menu.h"

namespace zilvo::platform {

/// The pop-up that is open over a control: the root's items and the chain of submenus, one item highlighted. All
/// positions are twips on the control's surface; the pop-up may reach beyond it.
class PopupMenu {
public:
    bool isOpen() const noexcept { return !panels_.empty(); }
    /// The root that was last opened, open or not; null for none.
    Menu* lastRoot() const noexcept { return lastRoot_; }
    Menu* highlighted() const noexcept;

    /// Opens the root's items with their corner at the point, in place of what was open. What does not fit into the
    /// room to the right or below opens to the left or above, if it fits there; submenus too.
    void open(Menu& root, Point corner, const Rectangle& room);
    void close() noexcept { panels_.clear(); }

    /// Each gives the item that the user chose, the pop-up then being closed; null for none.
    Menu* pointerDown(Point at);
    Menu* pointerUp(Point at);
    void pointerMove(Point at);
    Menu* key(input::Key key);
    Menu* accessKey(char16_t letter);

    /// Whether the user can choose it: enabled and shown, and so is all that leads to it.
    static bool canChoose(const Menu& item);

    void paint(Painter& painter) const;

private:
    struct Panel {
        Menu* menu;
        Rectangle area;
        Menu* highlighted = nullptr;
    };
    struct Place {
        std::size_t panel;
        Menu* item;
    };

    Panel panelFor(Menu& menu, const Rectangle& beside) const;
    Rectangle areaOf(const Panel& panel, const Menu& item) const;
    /// The front-most panel at the point and its item there; `panel` is panels_.size() outside.
    Place placeAt(Point at) const;
    void highlight(std::size_t panel, Menu* item);
    void openSubmenu();
    void step(int by);
    Menu* choose();

    std::vector<Panel> panels_;
    Menu* lastRoot_ = nullptr;
    Rectangle room_;
    bool pressed_ = false;
};

} // namespace zilvo::platform
