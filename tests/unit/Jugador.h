#pragma once

#include <memory>
#include <random>
#include <string>

#include "Platform.h"
#include "shell/Juego.h"
#include "storage/MemoryFiles.h"

/// Players for tests: each plays the whole program by hand, in a game folder of its own in memory.
class Jugador {
public:
    Jugador();
    virtual ~Jugador() = default;

    /// The stored files that the player's programs share.
    platform::Files& Files() { return files_; }

    /// Takes the end of a program, and must not come back; where there is none an exception does it.
    std::function<void()> OnEnd;

protected:
    static constexpr platform::Key kEnter{.Code = platform::KeyEnter, .Character = platform::KeyEnter};

    /// Starts the program anew; the files stay.
    void Restart();
    /// Makes moves until `moves` of them are made, or a fault is found, or the program ends.
    void Run();
    virtual void Move() = 0;
    /// Comes before every move, with the log of the one before.
    virtual void LookBack() {}

    const juego::Zarpi& Game() const { return static_cast<const juego::Zarpi&>(*windows_.front()); }
    platform::Form& Front() const { return *headless_->screen.Front(); }
    [[nodiscard]] platform::headless::Hand& Hand() const { return platform_->Hand(); }
    /// A letter that uncovers something now; 0 if the word needs none.
    char16_t GoodLetter() const;
    void Press(char16_t character) { PressKey(platform::KeyOf(character)); }
    void PressKey(const platform::Key& key);

    platform::storage::MemoryFiles files_;
    std::unique_ptr<Platform> platform_;
    platform::headless::Headless* headless_ = nullptr;
    std::unique_ptr<juego::Juego> juego_;
    std::vector<platform::Form*> windows_;
    int moves_ = 0;
    std::string fault_;

private:
    bool OneMove();
    /// What must hold after each event; empty if it does.
    std::string Fault() const;
};

/// Presses, clicks and closes whatever there is, more often than not something that leads on.
class JugadorAlAzar : public Jugador {
public:
    explicit JugadorAlAzar(unsigned seed) : random_(seed) {}

    /// Plays; the fault found, or nothing.
    std::string Play(int moves);
    int Games() const { return games_; }

protected:
    void Move() override;

private:
    void ClickAnything();
    void TypeAnything();
    platform::Control* AnyControl(platform::Form& form);
    int Pick(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

    std::mt19937 random_;
    int games_ = 0;
    bool inPlay_ = false;
};
