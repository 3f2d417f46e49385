#pragma once

#include <QListWidget>

#include "desktop/View.h"

namespace platform::desktop {

/// The view of a list box.
class ListBoxView : public ElementView<ListBox, QListWidget> {
public:
    ListBoxView(const Toolkit& toolkit, ListBox& element, QWidget& client);

protected:
    void Apply(const ListBoxLook& look) override;

private:
    std::vector<Text> lines_;
};

}  // namespace platform::desktop
