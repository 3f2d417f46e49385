#pragma once

#include <QWidget>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/keys/Board.h"
#include "desktop/keys/CursorView.h"
#include "desktop/keys/KeyFilter.h"
#include "desktop/views/View.h"
#include "desktop/windows/Client.h"
#include "desktop/windows/MenuView.h"

namespace platform::desktop {

class LabelView;

/// The window of an open form: frame, menu bar, client area, a view for each element. Its size is fixed; that of the
/// main window is the player's, and the client area stands in its middle.
class FormWindow : public QWidget {
public:
    /// The windows that were there before: the first one, by which the others find their place, and the one in front.
    /// Both are null for the first window of all.
    struct Before {
        const FormWindow* first;
        QWidget* front;
    };
    /// A modal form stands over the window in front so far and blocks it. The window is not shown yet.
    FormWindow(const Toolkit& toolkit, Form& form, const Before& before, bool modal);
    ~FormWindow() override;

    /// Shows what has changed in the form since the last time.
    void Refresh();
    /// Shows everything as the factor and the player's wishes have it now. A dialog keeps its place before the main
    /// window, `first`.
    void ShowAnew(const FormWindow& first);

    /// What a screen reader calls the window.
    [[nodiscard]] const Text& SpokenTitle() const {
        return form_.SpokenTitle.empty() ? form_.Caption : form_.SpokenTitle;
    }
    [[nodiscard]] Client& ClientArea() const { return client_; }
    [[nodiscard]] const Board& Elements() const { return board_; }
    [[nodiscard]] const CursorView& Here() const { return cursor_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeViews();
    void TakeClicks();
    void WatchKeys();
    void RefreshFrame();
    void RefreshLayers();
    void RefreshFocus();
    void LevelTexts();
    void RaiseContrast();
    void RefreshMark();
    void RefreshHints();
    [[nodiscard]] bool IsMain() const { return form_.MinButton; }
    [[nodiscard]] QSize DesignSize() const;
    void Arrange();
    void SetGround();
    void SetPlace(const FormWindow* first);

    const Toolkit toolkit_;
    Form& form_;
    Client& client_;
    Board board_;
    CursorView cursor_;
    Ring& mark_;
    KeyFilter& keys_;
    std::unique_ptr<MenuView> menu_;
    std::map<const Control*, std::unique_ptr<View>> views_;
    std::vector<LabelView*> labels_;
    /// The elements on which a click can be waited for, and the outline that tells of it.
    std::vector<std::pair<View*, Ring*>> hints_;
    std::vector<Control*> layers_;  // from back to front, as the widgets stand
    std::optional<FormLook> shown_;
};

}  // namespace platform::desktop
