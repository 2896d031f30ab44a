#pragma once

#include <QWidget>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "controls/FileStore.h"
#include "desktop/MainWindow.h"
#include "desktop/QtPorts.h"
#include "gui/Session.h"
#include "shell/mdiInterface.h"

namespace plandesk::test {

/// Numbers that the seed decides, all of them.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine(seed) {}
    /// From 0 up to, not including, `end`, which is above 0.
    int below(int end) { return static_cast<int>(engine() % static_cast<std::uint64_t>(end)); }
    bool oneIn(int number) { return below(number) == 0; }
    template <class Range>
    auto&& of(Range&& range) {
        return range[static_cast<std::size_t>(below(static_cast<int>(range.size())))];
    }

private:
    std::mt19937_64 engine;
};

/// Boxes and file dialogs that somebody closes by a key or button without reading them. Some are shown for real.
class RandomDialogs : public desktop::QtDialogs {
public:
    RandomDialogs(const Program& program, Dice& dice, std::filesystem::path folder)
        : QtDialogs(program), dice(dice), folder(std::move(folder)) {}

    void showMessage(const Message& message) override;
    bool askYesNo(const Message& question) override;
    std::string openFile(const FileDialog& dialog) override;
    std::string saveFile(const FileDialog& dialog) override;
    std::string chooseFolder(const std::string& title) override;

    /// Every box since the last call.
    std::vector<Message> take() { return std::exchange(messages, {}); }

private:
    std::string path(const FileDialog& dialog);
    void answerSoon();
    void answer();

    Dice& dice;
    std::filesystem::path folder;
    std::vector<Message> messages;
};

/// A whole system with its window, and hands that do anything to it.
class RandomHands {
public:
    RandomHands(Dice& dice, const std::filesystem::path& folder);

    /// One event of the user or the desktop; gives its name.
    std::string act();
    /// Closes what popped up, and lets everything that is due be shown.
    void settle();
    /// An empty text, or what does not hold of the system and its picture.
    std::string whatIsWrong();
    bool ended() const { return proposal.screen.ended(); }

    /// Told the name of each event before it happens.
    std::function<void(const std::string&)> before = [](const std::string&) {};

    Dice& dice;
    ProgramFolder program;
    RandomDialogs dialogs;
    FixedClock clock;
    FileStore files;
    Proposal proposal{{dialogs, clock, files, program}};
    mdiInterface shell{proposal};
    desktop::MainWindow window{proposal, shell};

private:
    void begin();
    QWidget* target();
    QWidget* controlOfAForm();
    QPoint placeIn(const QWidget& widget);
    void click(QWidget& widget);
    void drag(QWidget& widget);
    void key(QWidget& widget);
    void text(QWidget& widget);
    void wheel(QWidget& widget);
    void drop(QWidget& widget);
    void compose(QWidget& widget);
    void tip(QWidget& widget);
    void resize();
    void menuEntry();
    void desktopEvent(QWidget& widget);
    QString someText();
};

}  // namespace plandesk::test
