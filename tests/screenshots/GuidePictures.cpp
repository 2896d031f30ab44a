#include "screenshots/GuidePictures.h"

#include <QApplication>
#include <QDockWidget>
#include <QImage>
#include <QTest>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/ChildWindow.h"
#include "desktop/FormView.h"
#include "desktop/MainWindow.h"
#include "desktop/PreviewWindow.h"
#include "desktop/QtText.h"
#include "driver/Session.h"

namespace plandesk::test {

namespace {

/// A picture of the form in front, from its caption down to a control, or whole.
struct FormPicture {
    std::string_view name;
    std::string_view script;  ///< what leads there, for the driver
    std::string_view last{};  ///< the control that the picture ends below; empty: the whole window
};

constexpr QSize formRoom{860, 660};
constexpr QSize wholeRoom{1040, 600};
constexpr int below = 10;  // pixels behind the last control
constexpr std::size_t mostColours = 256;
constexpr QRgb upperBits = 0xF8F8F8;

// The first picture is taken of a proposal that has just been begun; the sample is run after it.
constexpr FormPicture begun{"new", "today 12/03/2026\nmenu mnuNew"};

constexpr FormPicture formPictures[] = {
    {"fees", "menu mnuMandatoryDocument\nclick frmDocCheckList.lblPayment"},
    {"checklist", "menu mnuMandatoryDocument\npress frmDocCheckList.txtDocPageNo(4) Tab"},
    {"plots", "menu mnuPlotExtRelationShip", "Label5"},
    {"extract", "menu mnu712Ext\ncellclick frmMain712.dgdOwner 1 3"},
    {"na-order", "menu mnuNaOrder"},
    {"orders", "close frmNaOrder\nmenu mnuUlcOrder\npick frmScrutinyULC.cmbExtract 0"},
    {"certificate", "menu mnuDCRUtilization\ntab frmDRCUtilisationForm.SSTab1 0"},
};

/// The lines of the sample up to those that save it and write its letters.
std::string sampleAnswers() {
    std::ifstream sample(PLANDESK_SOURCES "/data/sample-proposal.txt");
    std::string answers;
    for (std::string line; std::getline(sample, line) && line != "# Saving";)
        answers += line + '\n';
    if (!sample)
        throw std::runtime_error("the sample proposal cannot be read, or has no part that saves it");
    return answers;
}

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// The picture in a palette, a third of the size. Colours that look alike have one place of it, so that the few dots of
/// a rare colour find a place too.
QImage withPalette(const QImage& picture) {
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    std::map<QRgb, std::pair<int, QRgb>> alike;  // the most frequent of those that share their upper bits
    for (const auto& [colour, count] : counts)
        alike[colour & upperBits] = std::max(alike[colour & upperBits], {count, colour});
    std::vector<std::pair<int, QRgb>> frequent;
    for (const auto& [bits, most] : alike)
        frequent.push_back(most);
    std::sort(frequent.rbegin(), frequent.rend());
    frequent.resize(std::min(frequent.size(), mostColours));
    QList<QRgb> palette;
    for (const auto& [count, colour] : frequent)
        palette.append(colour);
    std::map<QRgb, uint> places;
    for (const auto& [colour, count] : counts) {
        const auto nearer = [colour = colour](QRgb a, QRgb b) { return distance(a, colour) < distance(b, colour); };
        places[colour] = static_cast<uint>(std::min_element(palette.begin(), palette.end(), nearer) - palette.begin());
    }
    QImage result(image.size(), QImage::Format_Indexed8);
    result.setColorTable(palette);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result.setPixel(x, y, places.at(image.pixel(x, y)));
    return result;
}

class Studio {
public:
    explicit Studio(std::filesystem::path folder) : folder(std::move(folder)) { show(formRoom); }

    void run(std::string_view commands) {
        std::istringstream script{std::string(commands)};
        driver::Session::Status status = driver::Session::Held;
        window.forms().act(Qt::OtherFocusReason, [&] { status = session.run(script); });
        if (status != driver::Session::Held)
            throw std::runtime_error("a picture cannot be taken");
        settle();
    }
    void show(QSize size) {
        window.furnish();
        window.resize(size);
        window.show();
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&window, key, modifiers);
        settle();
    }
    void type(const QString& text) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        settle();
    }

    void take(const FormPicture& picture) {
        run(picture.script);
        const Form* form = session.proposal.screen.frontForm();
        QWidget* frame = window.forms().windowOf(*form);
        QRect part = frame->rect();
        if (!picture.last.empty()) {
            const QWidget* last = window.forms().viewOf(*form)->widgetOf(form->at(picture.last));
            part.setBottom(last->mapTo(frame, last->rect().bottomLeft()).y() + below);
        }
        save(frame->grab(part), picture.name);
    }
    void takeWindow(std::string_view name) { save(window.grab(), name); }
    /// The upper part of the review's panel.
    void takePanel(std::string_view name) {
        auto* panel = window.findChild<QDockWidget*>();
        save(panel->grab(QRect(0, 0, panel->width(), panel->height() * 2 / 3)), name);
    }

    driver::Session session{QCoreApplication::applicationDirPath().toStdString(), "sample-proposal.txt", std::cout,
                            std::cerr};
    desktop::MainWindow window{session.proposal, session.shell};

private:
    /// Lets everything that is due be shown, the timer's colours and a review as well.
    void settle() { QTest::qWait(700); }

    void save(const QPixmap& picture, std::string_view name) const {
        const QImage image = withPalette(picture.toImage());
        const std::filesystem::path file = folder / (std::string(name) + ".png");
        if (!image.save(desktop::toQt(file.string()), "PNG", 0))
            throw std::runtime_error(file.string() + " cannot be written");
    }

    std::filesystem::path folder;
};

}  // namespace

void takeGuidePictures(const std::filesystem::path& folder) {
    Studio studio(folder);
    studio.take(begun);
    studio.run(sampleAnswers());
    for (const FormPicture& picture : formPictures)
        studio.take(picture);

    studio.show(wholeRoom);
    studio.run("menu mnuAnnexure\nset frmAnnexureA.txtRegNm \"\"");
    studio.key(Qt::Key_F9);
    studio.takeWindow("review");
    studio.key(Qt::Key_F, Qt::ControlModifier);
    studio.type(QStringLiteral("street"));
    studio.takePanel("search");
    studio.key(Qt::Key_F9);
    studio.run("click frmAnnexureA.cmdPrint");
    studio.takeWindow("preview");
    studio.key(Qt::Key_P, Qt::ControlModifier);
    studio.takeWindow("print");
}

}  // namespace plandesk::test
