#include "RoundTripModel.h"

#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <sstream>

#include <libxml/parser.h>

#include "base/Date.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"

namespace plandesk::test {

namespace {

using Texts = std::vector<std::string>;

// ---------------------------------------------------------------- texts

Texts pieces(const std::string& text, const std::string& separator) {
    Texts result;
    if (text.empty())
        return result;
    std::string rest = text;
    while (rest.find(separator) != std::string::npos) {
        result.push_back(rest.substr(0, rest.find(separator)));
        rest = rest.substr(rest.find(separator) + separator.size());
    }
    result.push_back(rest);
    return result;
}

std::string at(const Texts& list, std::size_t place) {
    if (place >= list.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    return list[place];
}

std::string orNothing(const Texts& list, std::size_t place) {
    return place < list.size() ? list[place] : "";
}

std::string withoutBlanks(std::string text) {
    while (!text.empty() && text.front() == ' ')
        text.erase(0, 1);
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

std::string inCapitals(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

std::string replaced(const std::string& text, const std::string& from, const std::string& to) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        if (text.compare(i, from.size(), from) == 0) {
            result += to;
            i += from.size();
        } else {
            result += text[i++];
        }
    }
    return result;
}

std::string escaped(const std::string& text) {
    return replaced(replaced(replaced(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

bool holdsLetter(const std::string& text) {
    for (const char c : text)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '\'')
            return true;
    return false;
}

bool holdsSign(const std::string& text) {
    return text.find_first_of("[!@#$%^&*]`") != std::string::npos;
}

// ---------------------------------------------------------------- the file

struct Element {
    std::string name;
    std::string text;
    std::vector<Element> children;
};

Element elementOf(const xmlNode* node) {
    Element element{reinterpret_cast<const char*>(node->name), "", {}};
    bool holdsElements = false;
    for (const xmlNode* child = node->children; child; child = child->next)
        holdsElements = holdsElements || child->type == XML_ELEMENT_NODE;
    for (const xmlNode* child = node->children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            element.children.push_back(elementOf(child));
        } else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
            const std::string text = reinterpret_cast<const char*>(child->content);
            if (holdsElements && text.find_first_not_of(" \t\r\n") == std::string::npos)
                continue;
            if (!element.children.empty() && element.children.back().name == "#text")
                element.children.back().text += text;
            else
                element.children.push_back({"#text", text, {}});
        }
    }
    for (const Element& child : element.children)
        element.text += child.text;
    return element;
}

std::optional<Element> rootOf(const std::string& bytes) {
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        xmlFreeDoc);
    const xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    return root ? std::optional(elementOf(root)) : std::nullopt;
}

// ---------------------------------------------------------------- what stands where

// Fields of the sections in the order in which they are read: "FIELD[.PART] KIND CONTROL".
constexpr const char* sectionOne =
    "0 txt txtTitle\n1 case -\n2 use -\n3 project -\n4 date DTPicker1\n5 sector -\n6 txt txtpltno\n7 txt txtFPNo\n"
    "8 txt txtHissaNo\n9 txt txtCTSNo\n11 txt txtGutNo\n12 name txtApplicantNm\n13 txt txtApplicantAddr\n14.0 arch -\n"
    "14.1 txt txtArchNm\n14.2 txt txtArchFirstName\n14.3 txt txtArchMiddName\n14.4 reg txtRegNm\n15.0 strict Opt1\n"
    "16.0 txt txtPltArea\n16.1 txt txtActualArea\n16.2 allowed txtAreaAllowed\n17 txt txtRmk1\n18 txt txtFileNo\n"
    "19 txt txtRevNo\n20 txt txtReservationType\n15.1 strict Opt2\n21 txt txtTikaNo";
constexpr const char* sectionTwo =
    "0 yn Opt3\n1 yn Opt4\n2.0 txt txtSanctionNo\n2.1 date DTPicker2\n3 zone -\n4.0 yn Opt5\n4.1 yn Opt6\n4.2 yn Opt7\n"
    "4.3 yn Opt8\n5.0 yn Opt9\n5.1 yn Opt10\n5.2 yn Opt11\n5.3 yn Opt12\n5.4 yn Opt13\n5.5 yn Opt14\n5.6 yn Opt15\n"
    "5.7 yn Opt16\n5.8 yn Opt17\n6.0 txt txtMainProcess\n6.1 txt txtWorkmen\n6.2 txt txtHPEmp\n6.3 txt txtInstClass\n"
    "6.4 txt txtReferalLaw\n6.5 txt txtInstNm\n6.6 txt txtInstAddr\n6.7 txt txtWaste\n7.0 txt txtAverage\n"
    "7.1 txt txtPescribWidth\n7.2 txt txtBuildingHgt\n7.3 txt txtAbvCentStreet\n8.0 txt txtNoTeneExist\n"
    "8.1 txt txtTenePropose\n9 txt txtRmk2";
constexpr const char* sectionThree =
    "0 yn Opt18\n1.0 txt txtPlinthArea\n1.1 txt txtFloorArea\n1.2 txt txtDevRights\n1.3 txt txtTotTene\n2 txt txtRmk3";
constexpr const char* sectionFour =
    "0 yn Opt19\n1 txt txtDistCentStreet\n2.0 yn Opt20\n2.1 yn Opt21\n3.0 yn Opt22\n3.1 yn Opt23\n3.2 yn Opt24\n"
    "4.0 txt txtDiaInnerChowk\n4.1 txt txtDiaOuterChowk\n5.0 yn Opt25\n5.1 yn Opt26\n6.0 txt txtLiftTyp\n"
    "6.1 txt txtLiftPassCap\n6.2 txt txtNoLift\n6.3 txt txtDoorTyp\n6.4 txt txtFireDetail\n7.0 yn Opt27\n7.1 yn Opt28\n"
    "8 txt txtRmk4";
constexpr const char* sectionFive =
    "0 yn Opt29\n1 yn Opt30\n2.0 txt txtWidthMeanAccess\n2.1 txt txtRightWay\n2.2 txt txtAttachDoc\n2.3 txt "
    "txtClearHgt\n"
    "3 yn Opt31\n4 txt txtHgtEnroch\n5.0 yn Opt32\n5.1 yn Opt33\n6 txt txtCompWallHgt\n7.0 yn Opt34\n7.1 yn Opt35\n"
    "7.2 yn Opt36\n7.3 yn Opt37\n8 txt txtProvAnteena\n9 txt txtNotComply\n10.0 yn Opt38\n10.1 yn Opt39\n"
    "11.0 txt txtFillLevel\n11.1 txt txtLevelRoad\n11.2 txt txtPlinthHgtRoad\n12.0 txt txtRoofs\n12.1 txt txtFloor\n"
    "12.2 txt txtWall\n12.3 txt txtColumns\n12.4 txt txtBeam\n12.5 txt txtOtherItem\n13.0 txt txtWaterCloset\n"
    "13.1 txt txtNoBath\n13.2 txt txtNoUrinal\n13.3 txt txtNoKitchen\n14 txt txtWaterSource\n15 txt txtDistSwer\n"
    "16 txt txtMuncipalLand\n17 txt txtRmk5";

/// Area, rate and amount of each fee row: six rows of the first list, then three of the second.
const std::vector<Texts> feeRows = {
    {"txtArea", "txtRate", "txtTotal"},
    {"txtDevAreaC", "txtDevRateC", "txtDevAmtC"},
    {"txtDevAreaI", "txtDevRateI", "txtDevAmtI"},
    {"txtScrutinyRArea", "txtScrutinyRRate", "txtScrutinyRAmount"},
    {"txtScrutinyCArea", "txtScrutinyCRate", "txtScrutinyCAmount"},
    {"txtScrutinyIndArea", "txtScrutinyINDRate", "txtScrutinyINDAmount"},
    {"txtScrutinyRArea2", "txtScrutinyRRate2", "txtScrutinyRAmount2"},
    {"txtScrutinyCArea2", "txtScrutinyCRate2", "txtScrutinyCAmount2"},
    {"txtScrutinyIndArea2", "txtScrutinyINDRate2", "txtScrutinyINDAmount2"},
};

const Texts feeElements = {
    "AREADEVRESI",     "RATEDEVRESI",     "AMTDEVRESI",     "AREADEVCOM",       "RATEDEVCOM",       "AMTDEVCOM",
    "AREADEVIND",      "RATEDEVIND",      "AMTDEVIND",      "AREASCRUTINYRESI", "RATESCRUTINYRESI", "AMTSCRUTINYRESI",
    "AREASCRUTINYCOM", "RATESCRUTINYCOM", "AMTSCRUTINYCOM", "AREASCRUTINYIND",  "RATESCRUTINYIND",  "AMTSCRUTINYIND",
    "COMPUNDFEES",     "OTHER",           "TOTALAMOUNT",    "PAYMODE",          "PAYDATE",          "DRAFTCHQNO",
    "BANKNAME",        "BRANCHNM"};
const Texts secondFeeElements = {"AREA-SCRUT-RESI-2", "RATE-SCRUT-RESI-2", "AMOUNT-SCRUT-RESI-2",
                                 "AREA-SCRUT-COMM-2", "RATE-SCRUT-COMM-2", "AMOUNT-SCRUT-COMM-2",
                                 "AREA-SCRUT-IND-2",  "RATE-SCRUT-IND-2",  "AMOUNT-SCRUT-IND-2"};

// Elements of ANNEXUREB in order: "yn", "raw" or "esc", with the form that holds them.
constexpr const char* annexureElements =
    "A yn IsAffectRoadReservation\nA yn IsAnyDeductOfRoadLine\nA raw TotalAreaRoadDeduction\nA esc NetArea\n"
    "A raw PermissibleFSIZone\nA raw NoOfTenamentsPerAcre\nA yn IsUseOfEveryRoomMarked\nA yn IsInAccordanceRegulation\n"
    "A raw Average\nA raw ExistingWidthStreet\nA raw AboveAverageGrndLevel\nA yn IsComplyWith83Regulation\n"
    "A yn IsAnyStructureOnPlot\nA yn IsCorrectlyMarkedOnSitePlan\nA yn IsDemolishMarkedYellow\n"
    "A raw PlinthAreaOfStructureRet\nA raw PlinthTotFloorArea\nA raw AnnexBPlinthArea\nA raw AnnexBFloorArea\n"
    "A raw OverAllFloorArea\nA yn IsConsumeFullFloor\nA raw WhyNot\nA yn IsBldgSetbacksonUpFloors\n"
    "A raw TotalNoOfTenements\nC raw WidthOfFrontOpenSpace\nC yn IsAbutsTwoMoreStreets\nC yn IsComplyWithRegul74\n"
    "C yn ApplicableProvInAppendixN\nC esc WidthOfSideOpenSpace\nC esc WidthOfRearOpenSpace\nC esc "
    "DistanceBetweenBldg\n"
    "C yn IsComplyWithRegul75\nC yn IsPlotNarrow\nC esc RequirmentForParking\nC esc ParkingSpaceProposed\n"
    "C esc LockUpGaragesProposed\nC yn IsLoadingUnloadinUnRegulat86\nC esc Requirement\n"
    "C esc ProposedSpaceForLoadUnLoading\nC esc MaxWidthOfBalcony\nC yn IsReduceOpenSpace\nC raw TotalArea\n"
    "C raw MaxWidthOtherProjection\nC yn IsCanopiesProposed\nC yn IsComplyWithRegula80\nC yn IsAmenityUnRegula54\n"
    "C yn IsAnyAccessoryBldgProposed\nC esc PurposeAccessoryBldg\nC yn IsAwayFrom75Or15\n"
    "C yn IsNaturalWaterCoursePass\nC yn IsSetbackProvideRegula43\nC esc NoOfWaterClosetProposed\n"
    "C esc NoOfBathsClosetProposed\nC esc NoOfUrinalsClosetProposed\nC esc NoOfKitchenClosetProposed\n"
    "C raw SectionRemark4";

const Texts caseTypes = {"New", "Revised"};
const Texts uses = {"Residential",
                    "Resi+Comm ",
                    "Industrial",
                    "Educational ",
                    "Assembly/Public",
                    "Institutional",
                    "Merchantile/Commercial",
                    "Business",
                    "Utility/services",
                    "Storage"};
const std::vector<Texts> projects = {{"Building Development", "Development"},
                                     {"Amalgamation", "AMLG"},
                                     {"Sub Division", "SD"},
                                     {"Sub Division + Amalgamation", "SD + AMLG"},
                                     {"Amalgamation + Sub Division", "AMLG + SD"},
                                     {"Amalgamation + Proposed Development", "AMLG + Development"},
                                     {"Sub Division + Proposed Development", "SD + Development"},
                                     {"Sub Division + Amalgamation + Proposed Development", "SD + AMLG + Dev"},
                                     {"Amalgamation + Sub Division + Proposed Development", "AMLG + SD + Dev"}};
const std::vector<Texts> zones = {{"R1(purely residential)", "R1"}, {"R2(Residential with shop line)", "R2"},
                                  {"C1(Commercial zone)", "C1"},    {"C2(District commercial)", "C2"},
                                  {"G1(Not Hills)", "G1"},          {"G2(Green belt)", "G2"},
                                  {"I(Industrial)", "I"},           {"I1(Service Industrial Zone)", "G3"}};

constexpr int mandatoryRows = 9;
constexpr int conditionalRows = 14;

// ---------------------------------------------------------------- the forms

/// The values of all controls, keyed "FORM NAME": A and C for the Particulars, P for the payment, M and K for the
/// mandatory and the conditional checklist. A yes/no question holds its digit.
class Forms {
public:
    Forms(const std::vector<int>& villages, const std::string& today) : villages(villages) {
        for (const char* date : {"A DTPicker1", "A DTPicker2", "P DTPicker1"})
            values[date] = today;
        values["A professional"] = "ARCH";
        values["P mode"] = "CASH";
        values["C txtRightWay"] = values["C txtAttachDoc"] = "2";
        for (int i = 1; i <= 39; ++i)
            values[(i < 19 ? "A Opt" : "C Opt") + std::to_string(i)] = "2";
        for (const char* question : {"A Opt77", "C opt21bi", "C opt21bii"})
            values[question] = "2";
        std::istringstream elements(annexureElements);
        for (std::string form, kind, name; elements >> form >> kind >> name;)
            values[form + (kind == "yn" ? " " : " txt") + name] = kind == "yn" ? "2" : "";
    }

    std::string& operator[](const std::string& key) { return values[key]; }
    bool has(const std::string& key) const { return values.contains(key); }

    std::vector<Message> boxes;
    const std::vector<int>& villages;
    int feeArea = 0;

    /// Program code assigns a text; its reaction runs.
    void assign(const std::string& key, const std::string& text) {
        if (values[key] == text)
            return;
        values[key] = text;
        changed(key);
    }

    /// Program code sets the pair: Yes to (number = 1), then No to (number = 0).
    void answer(const std::string& key, double number) {
        turnYes(key, number == 1);
        turnNo(key, number == 0);
    }
    void turnYes(const std::string& key, bool on) { turn(key, on, "1"); }
    void turnNo(const std::string& key, bool on) { turn(key, on, "0"); }

    void box(const std::string& text, const std::string& title) { boxes.push_back({title, text, Icon::Information}); }

private:
    void turn(const std::string& key, bool on, const std::string& digit) {
        if (on == (values[key] == digit))
            return;
        values[key] = on ? digit : "2";
        if (on)
            clicked(key, digit);
    }

    void empty(const Texts& keys) {
        for (const std::string& key : keys)
            assign(key, "");
    }

    void clicked(const std::string& key, const std::string& digit) {
        const bool no = digit == "0";
        const Texts lift = {"C txtLiftTyp", "C txtLiftPassCap", "C txtNoLift", "C txtDoorTyp", "C txtFireDetail"};
        if (key == "A Opt2" && !no)
            workOutAllowedArea();
        if (key == "A Opt2" && no) {
            assign("A txtAreaAllowed", "");
            feeArea = 0;
        }
        if (key == "A Opt9" && no) {
            empty(
                {"A txtMainProcess", "A txtWorkmen", "A txtHPEmp", "A txtInstClass", "A txtReferalLaw", "A txtWaste"});
            for (int i = 10; i <= 17; ++i)
                values["A Opt" + std::to_string(i)] = "2";
        }
        if (key == "A Opt10" && no)
            empty({"A txtInstNm", "A txtInstAddr"});
        if (key == "A Opt18" && no)
            empty({"A txtDevRights"});
        if (key == "A Opt77" && no)
            empty({"A txtFstExistingWidth", "A txtFstStreetWidth"});
        if (key == "A IsAnyDeductOfRoadLine" && no)
            empty({"A txtTotalAreaRoadDeduction", "A txtNetArea"});
        if (key == "A IsConsumeFullFloor")
            empty({"A txtWhyNot"});
        if (key == "C Opt25" && no) {
            values["C Opt26"] = "2";
            empty(lift);
        }
        if (key == "C Opt26" && no)
            empty(lift);
        if (key == "C Opt39" && no)
            empty({"C txtFillLevel"});
        if (key == "C opt21bii")
            assign("C txtAttachDoc", digit);
        if (key == "C IsAbutsTwoMoreStreets")
            values["C IsComplyWithRegul74"] = "2";
        if (key == "C IsLoadingUnloadinUnRegulat86")
            empty({"C txtRequirement"});
        if (key == "C IsAnyAccessoryBldgProposed") {
            empty({"C txtPurposeAccessoryBldg"});
            if (no)
                values["C IsAwayFrom75Or15"] = values["C Opt31"] = "2";
        }
    }

    void workOutAllowedArea() {
        const std::string plot = values["A txtPltArea"];
        const std::string actual = values["A txtActualArea"];
        if (holdsLetter(plot)) {
            box("Enter Numeric Data", "Invalid Data");
            values["A txtPltArea"] = "";
        } else if (holdsLetter(actual)) {
            box("Enter Numeric Data", "Invalid Data");
            values["A txtActualArea"] = "";
            values["A Opt2"] = "2";
        } else if (plot.empty()) {
            box("Enter Plot Area", "Plot Area");
            values["A Opt2"] = "2";
        } else if (actual.empty()) {
            box("Enter Actual Area measured.", "Actual Area");
            values["A Opt2"] = "2";
        } else {
            values["A txtAreaAllowed"] = toDouble(actual) < toDouble(plot) ? actual : plot;
            feeArea = toInteger16(values["A txtAreaAllowed"]);
        }
    }

    void changed(const std::string& key) {
        for (const Texts& row : feeRows) {
            const std::string area = "P " + row[0], rate = "P " + row[1], amount = "P " + row[2];
            if (key == area)
                checkPair(area, rate, amount);
            if (key == rate && key != "P txtRate")
                checkPair(rate, area, amount);
            if (key == amount) {
                addUp();
                assign(amount, formatAmount(values[amount]));
            }
        }
        if (key == "P txtCompoundFees" || key == "P txtOther") {
            checkPair(key, key, "");
            addUp();
        }
        if (key.starts_with("M page") || key.starts_with("K page"))
            pageChanged(key);
        if (key == "C txtAttachDoc")
            attachDocChanged();
    }

    void checkPair(const std::string& first, const std::string& second, const std::string& target) {
        if (holdsLetter(values[first])) {
            box("Enter Numeric Data", "Payment Detail");
            assign(first, "");
        } else if (holdsSign(values[first])) {
            box("Do not enter any special character [!@#$%^&*]", "Payment Details");
            assign(first, "");
        } else if (values[first].empty() || values[second].empty()) {
            return;
        } else if (holdsLetter(values[second])) {
            box("Enter Numeric values", "Payment Details");
            assign(first, "");
        } else if (!target.empty()) {
            const double product = toDouble(values[first]) * toDouble(values[second]);
            if (std::isinf(product))
                throw RuntimeError(ErrorNumber::Overflow, "Overflow");
            assign(target, numberText(product));
        }
    }

    void addUp() {
        double sum = 0;
        for (const char* box : {"txtCompoundFees", "txtOther", "txtScrutinyCAmount", "txtScrutinyRAmount",
                                "txtScrutinyINDAmount", "txtDevAmtI", "txtDevAmtC", "txtTotal"})
            sum += leadingNumber(values[std::string("P ") + box]);
        sum = leadingNumber(numberText(sum));
        for (const char* box : {"txtScrutinyCAmount2", "txtScrutinyINDAmount2", "txtScrutinyRAmount2"})
            sum += leadingNumber(values[std::string("P ") + box]);
        values["P txtGrandTotal"] = formatAmount(numberText(sum));
    }

    void pageChanged(const std::string& key) {
        checkPair(key, key, "");
        const bool page = leadingNumber(values[key]) > 0;
        if (!page)
            assign(key, "");
        const int number = std::stoi(key.substr(6));
        values[key.substr(0, 2) + "check" + std::to_string(number / 2)] = page ? "1" : "0";
    }

    void attachDocChanged() {
        const std::string text = values["C txtAttachDoc"];
        if (text.empty())
            return assign("C txtAttachDoc", "2");
        try {
            const int number = toInteger16(text);
            if (number == 1)
                turnYes("C opt21bii", true);
            else if (number == 0)
                turnNo("C opt21bii", true);
            else
                values["C opt21bii"] = "2";
        } catch (const RuntimeError&) {
            return;  // passed over
        }
    }

    std::map<std::string, std::string> values;
};

// ---------------------------------------------------------------- opening

class Opening {
public:
    Opening(Forms& forms, const std::optional<Element>& root) : forms(forms), root(root) {}

    void run() {
        const Texts groups = pieces(flattened(), "||");
        const auto fieldsOf = [&](std::size_t group) { return pieces(orNothing(groups, group), "@"); };
        section("A ", sectionOne, fieldsOf(0));
        section("A ", sectionTwo, fieldsOf(1));
        section("A ", sectionThree, fieldsOf(2));
        section("C ", sectionFour, fieldsOf(3));
        section("C ", sectionFive, fieldsOf(4));
        checklists(groups);
        payment(fieldsOf(6));
        annexureB();
        if (!root)
            for (int i = 0; i < 6; ++i)
                forms.boxes.push_back({" Particulars of Development (Read XML) ",
                                       "91:Object variable or With block variable not set", Icon::Critical});
    }

private:
    void attempt(const std::function<void()>& statement) {
        try {
            statement();
        } catch (const RuntimeError& error) {
            forms.boxes.push_back({"Particular of Development (Read XML) ",
                                   std::to_string(error.number) + " : " + error.description, Icon::Critical});
        }
    }

    std::string flattened() const {
        std::string all;
        if (root) {
            for (const Element& child : root->children) {
                if (inCapitals(child.name) == "NTS")
                    continue;
                for (const Element& field : child.children)
                    all += replaced(field.text, "\\", "\\\\") + "@";
                all += "||";
            }
        }
        return all;
    }

    void section(const std::string& form, const std::string& rows, const Texts& fields) {
        for (const std::string& row : pieces(rows, "\n")) {
            const Texts columns = pieces(row, " ");
            const Texts place = pieces(columns[0], ".");
            attempt([&] {
                const auto field = [&](const Texts& where) {
                    const std::string whole = at(fields, std::stoul(where[0]));
                    return where.size() == 1 ? whole : at(pieces(whole, "#"), std::stoul(where[1]));
                };
                if (columns[1] == "allowed" && toDouble(field({"15", "1"})) != 1)
                    return;
                take(form, columns[1], columns[2], field(place));
            });
        }
    }

    void take(const std::string& form, const std::string& kind, const std::string& control, const std::string& text) {
        if (kind == "txt" || kind == "allowed") {
            forms.assign(form + control, text);
        } else if (kind == "reg") {
            forms.assign(form + control, replaced(text, "\\\\", "\\"));
        } else if (kind == "name") {
            forms.assign(form + control, text.substr(0, text.find('~')));
        } else if (kind == "date") {
            forms[form + control] = toDate(text).text();
        } else if (kind == "yn" || kind == "strict") {
            const double number = toDouble(text);
            if (kind == "strict" || number == 0 || number == 1 || number == 2)
                forms.answer(form + control, number);
        } else if (kind == "case") {
            if (text == "RES" || text == "RVA")
                throw RuntimeError(ErrorNumber::InvalidPropertyValue, "Invalid property value");
            forms["A case"] = caseTypes[text == "CHG" || text == "REV" ? 1 : 0];
        } else if (kind == "use") {
            const std::string wanted = inCapitals(withoutBlanks(text));
            if (wanted.empty())
                forms["A case"] = "";
            for (const std::string& use : uses)
                if (inCapitals(withoutBlanks(use)) == wanted)
                    forms["A use"] = use;
        } else if (kind == "project") {
            forms["A project"] = projects[0][0];
            for (const Texts& project : projects)
                if (project[1] == text)
                    forms["A project"] = project[0];
        } else if (kind == "sector") {
            if (withoutBlanks(text).empty())
                forms["A sector"] = "";
            else
                for (const int village : forms.villages)
                    if (village == toDouble(text))
                        forms["A sector"] = std::to_string(village);
        } else if (kind == "zone") {
            forms["A zone"] = "";
            for (const Texts& zone : zones)
                if (zone[1] == inCapitals(withoutBlanks(text)))
                    forms["A zone"] = zone[0];
        } else if (kind == "arch") {
            const std::string code = withoutBlanks(text);
            if (code == "ARCH" || code == "LE" || code == "SE")
                forms["A professional"] = code;
        }
    }

    void checklists(const Texts& groups) {
        Texts entries;
        attempt([&] {
            std::string list = at(groups, 5);
            if (list.empty())
                throw RuntimeError(ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument");
            list.pop_back();
            entries = pieces(list, "#");
        });
        for (int i = 0; i < conditionalRows; ++i) {
            const std::string form = i < mandatoryRows ? "M " : "K ";
            const std::string from = form + "page" + std::to_string(2 * i);
            const std::string to = form + "page" + std::to_string(2 * i + 1);
            const std::string check = form + "check" + std::to_string(i);
            std::optional<std::string> entry;
            attempt([&] { entry = at(entries, static_cast<std::size_t>(i)); });
            forms[check] = "0";
            forms.assign(from, "");
            forms.assign(to, "");
            if (!entry)
                continue;
            const Texts parts = pieces(*entry, "-");
            attempt([&] {
                if (toDouble(at(parts, 0)) == 1)
                    forms[check] = "1";
            });
            attempt([&] {
                if (toDouble(at(parts, 1)) != 0)
                    forms.assign(from, parts[1]);
            });
            attempt([&] {
                if (parts.size() > 2 && toDouble(parts[2]) != 0)
                    forms.assign(to, parts[2]);
            });
        }
    }

    void payment(const Texts& fields) {
        forms["P txtArea"] = std::to_string(forms.feeArea);
        Texts order;
        for (std::size_t row = 0; row < 6; ++row)
            order.insert(order.end(), feeRows[row].begin(), feeRows[row].end());
        for (const char* box : {"txtCompoundFees", "txtOther", "txtGrandTotal"})
            order.emplace_back(box);
        for (std::size_t i = 0; i < order.size(); ++i)
            attempt([&] { forms.assign("P " + order[i], at(fields, i)); });
        bool cash = false;
        attempt([&] {
            cash = at(fields, 21) == "CASH";
            forms["P mode"] = cash ? "CASH" : "PAYORDER";
        });
        if (!cash) {
            attempt([&] { forms["P DTPicker1"] = toDate(at(fields, 22)).text(); });
            attempt([&] { forms.assign("P txtChqDraftNo", at(fields, 23)); });
            attempt([&] { forms.assign("P txtBankNm", at(fields, 24)); });
            attempt([&] { forms.assign("P txtBranchNm", at(fields, 25)); });
        }
        for (std::size_t i = 0; i < 9; ++i)
            attempt([&] { forms.assign("P " + feeRows[6 + i / 3][i % 3], at(fields, 26 + i)); });
    }

    void annexureB() {
        int number = 0;
        if (!root)
            return;
        for (const Element& child : root->children) {
            if (inCapitals(child.name) != "ANNEXUREB")
                continue;
            for (const Element& element : child.children) {
                if (element.name == "Section9a3536")
                    streetsAndTrees(pieces(element.text, "#"));
                for (const std::string form : {"A ", "C "}) {
                    if (forms.has(form + "txt" + element.name))
                        forms.assign(form + "txt" + element.name, element.text);
                    if (!forms.has(form + element.name))
                        continue;
                    attempt([&] { number = toInteger16(element.text); });
                    forms.turnYes(form + element.name, number == 1);
                    attempt([&] { number = toInteger16(element.text); });
                    forms.turnNo(form + element.name, number == 0);
                }
            }
        }
    }

    void streetsAndTrees(const Texts& parts) {
        double first = 2;
        attempt([&] { first = toDouble(at(parts, 0)); });
        if (first == 1) {
            forms.turnYes("A Opt77", true);
            attempt([&] { forms.assign("A txtFstExistingWidth", at(parts, 2)); });
            attempt([&] { forms.assign("A txtFstStreetWidth", at(parts, 1)); });
        }
        if (first == 0)
            forms.turnNo("A Opt77", true);
        attempt([&] { forms.assign("C txtHowManyTrees", at(parts, 3)); });
        attempt([&] { forms.assign("C txtNoOfTreesAffected", at(parts, 4)); });
    }

    Forms& forms;
    const std::optional<Element>& root;
};

// ---------------------------------------------------------------- saving

/// Joins the document from the forms; nothing when a form refuses.
class Saving {
public:
    explicit Saving(Forms& forms) : forms(forms) {}

    std::optional<std::string> run() {
        Texts fees, secondFees;
        if (!savePayment(fees, secondFees))
            return std::nullopt;
        const std::optional<std::string> conditional = checklist("K ", conditionalRows);
        const std::optional<std::string> mandatory = checklist("M ", mandatoryRows);
        if (!conditional || !mandatory)
            return std::nullopt;
        file = "<?xml version = '1.0' ?><INWARDINFO DEPARTMENT='BP'>";
        sectionsOneToThree();
        packed("SECTION-IV",
               {"ONETHREE-RAD", "ONETHREE-TEXT", "ONEFOUR-RAD", "ONESIX-RAD", "ONESIX-TEXT", "ONESEVEN-RAD",
                "ONESEVEN-TEXT", "ONEEIGHT-RAD", "REMARK4"},
               sectionFourValues());
        packed("SECTION-V",
               {"TWOZERO", "TWOONE-RAD", "TWOONE-TEXT", "TWOTHREE-RAD", "TWOTHREE-TEXT", "TWOFOUR-RAD", "TWOFOUR-TEXT",
                "TWOFIVE-RAD", "TWOSIX-TEXT", "TWOEIGHT-TEXT", "TWONINE-RAD", "TWONINE-TEXT", "THREEZERO-TEXT",
                "THREEONE-TEXT", "THREETWO-TEXT", "THREETHREE-TEXT", "THREEFOUR-TEXT", "REMARK5"},
               sectionFiveValues());
        element("DOCCHKLIST", escaped(*mandatory + *conditional));
        file += "<PAYMENTDETAIL>";
        values(feeElements, pieces(escaped(joined(fees, "$$")), "$$"));
        values(secondFeeElements, pieces(joined(secondFees, "$$"), "$$"));
        file += "</PAYMENTDETAIL>";
        annexureB();
        return file;
    }

private:
    static std::string joined(const Texts& list, const std::string& separator) {
        std::string text;
        for (std::size_t i = 0; i < list.size(); ++i)
            text += (i > 0 ? separator : "") + list[i];
        return text;
    }

    void element(const std::string& name, const std::string& value) {
        file += "<" + name + ">" + value + "</" + name + ">";
    }
    void values(const Texts& names, const Texts& list) {
        for (std::size_t i = 0; i < names.size(); ++i)
            element(names[i], orNothing(list, i));
    }
    void packed(const std::string& section, const Texts& names, const Texts& list) {
        file += "<" + section + ">";
        values(names, pieces(escaped(joined(list, "$$")), "$$"));
        file += "</" + section + ">";
    }

    std::string a(const std::string& box) { return withoutBlanks(forms["A " + box]); }
    std::string c(const std::string& box) { return withoutBlanks(forms["C " + box]); }
    std::string list(const std::string& form, const Texts& boxes) {
        Texts texts;
        for (const std::string& box : boxes)
            texts.push_back(withoutBlanks(forms[form + box]));
        return joined(texts, "#");
    }
    /// The digit of a question and, after a Yes, those of the questions behind it; "2" for each otherwise.
    std::string opened(const std::string& parent, const Texts& behind) {
        std::string text = forms[parent];
        for (const std::string& question : behind)
            text += "#" + (forms[parent] == "1" ? forms[question] : "2");
        return text;
    }

    bool savePayment(Texts& fees, Texts& secondFees) {
        Texts boxes;
        for (const std::size_t row : {3, 4, 5, 6, 7, 8, 0, 1, 2})
            boxes.insert(boxes.end(), feeRows[row].begin(), feeRows[row].end());
        for (const char* box :
             {"txtCompoundFees", "txtOther", "txtGrandTotal", "txtChqDraftNo", "txtBankNm", "txtBranchNm"})
            boxes.emplace_back(box);
        try {
            for (const std::string& box : boxes)
                if (withoutBlanks(forms["P " + box]).empty())
                    forms.assign("P " + box, "0.00");
        } catch (const RuntimeError&) {
            return false;
        }
        if (holdsSign(forms["P txtRate"]))
            return false;
        if (forms["P mode"] != "CASH")
            for (const char* box : {"P txtChqDraftNo", "P txtBankNm", "P txtBranchNm"})
                if (holdsSign(forms[box]) || forms[box].empty())
                    return false;
        for (std::size_t row = 0; row < 6; ++row)
            for (const std::string& box : feeRows[row])
                fees.push_back(forms["P " + box]);
        for (const char* key : {"P txtCompoundFees", "P txtOther", "P txtGrandTotal", "P mode", "P DTPicker1"})
            fees.push_back(forms[key]);
        for (const char* box : {"P txtChqDraftNo", "P txtBankNm", "P txtBranchNm"})
            fees.push_back(withoutBlanks(forms[box]));
        for (std::size_t row = 6; row < 9; ++row)
            for (const std::string& box : feeRows[row])
                secondFees.push_back(forms["P " + box]);
        return true;
    }

    std::optional<std::string> checklist(const std::string& form, int rows) {
        Texts entries;
        for (int i = 0; i < rows; ++i) {
            const std::string from = forms[form + "page" + std::to_string(2 * i)];
            const std::string to = forms[form + "page" + std::to_string(2 * i + 1)];
            const bool noFrom = withoutBlanks(from).empty();
            if (forms[form + "check" + std::to_string(i)] == "1") {
                if (noFrom || withoutBlanks(to).empty())
                    return std::nullopt;
                entries.push_back("1-" + from + "-" + to);
            } else {
                if (!noFrom)
                    return std::nullopt;
                entries.emplace_back("0-0-0");
            }
        }
        return joined(entries, "#");
    }

    void sectionsOneToThree() {
        file += "<SECTION-I>";
        element("TITLE", escaped(a("txtTitle")));
        element("CASETYPE", forms["A case"] == "Revised" ? "REV" : "NEW");
        element("PROPOSALTYPE", forms["A use"]);
        std::string code;
        for (const Texts& project : projects)
            if (project[0] == forms["A project"])
                code = project[1];
        element("PROPOSEDPROJECT", code);
        element("PROPOSALDATE", forms["A DTPicker1"]);
        element("SECTOR", forms["A sector"]);
        element("PLOTNO", escaped(a("txtpltno")));
        element("FPNO", escaped(a("txtFPNo")));
        element("HISSANO", escaped(a("txtHissaNo")));
        element("CTSNO", escaped(a("txtCTSNo")));
        element("TIKANO", "");
        element("GUTNO", escaped(a("txtGutNo")));
        element("APPLICANTNM", escaped(a("txtApplicantNm")));
        element("APPLICANTADDR", escaped(a("txtApplicantAddr")));
        element("ARCHINFO", escaped(joined({forms["A professional"], a("txtArchNm"), forms["A txtArchFirstName"],
                                            forms["A txtArchMiddName"], a("txtRegNm")},
                                           "#")));
        element("THREE-RAD", forms["A Opt1"] + "#" + forms["A Opt2"]);
        std::string areas = a("txtPltArea") + "#" + a("txtActualArea");
        if (forms["A Opt2"] == "1")
            areas += "#" + a("txtAreaAllowed");
        element("THREE-TEXT", areas);
        element("REMARK1", escaped(a("txtRmk1")));
        element("FILENO", escaped(a("txtFileNo")));
        element("REVNO", escaped(a("txtRevNo")));
        element("ReservationType", escaped(a("txtReservationType")));
        element("TOTALFSI", numberText(leadingNumber(forms["A txtTikaNo"])));
        file += "</SECTION-I><SECTION-II>";
        element("FOUR-RAD", forms["A Opt3"]);
        element("FIVE-RAD", forms["A Opt4"]);
        element("FIVE-TEXT", escaped(a("txtSanctionNo")) + "#" + forms["A DTPicker2"]);
        code = "";
        for (const Texts& zone : zones)
            if (zone[0] == forms["A zone"])
                code = zone[1];
        element("SIX-A", code);
        element("SEVEN-RAD", opened("A Opt5", {"A Opt6", "A Opt7", "A Opt8"}));
        if (forms["A Opt9"] == "1")
            element("EIGHT-RAD", joined({"1", forms["A Opt10"], forms["A Opt11"], opened("A Opt12", {"A Opt13"}),
                                         forms["A Opt14"], opened("A Opt15", {"A Opt16", "A Opt17"})},
                                        "#"));
        else
            element("EIGHT-RAD", forms["A Opt9"] + "#2#2#2#2#2#2#2#2");
        element("EIGHT-TEXT", escaped(list("A ", {"txtMainProcess", "txtWorkmen", "txtHPEmp", "txtInstClass",
                                                  "txtReferalLaw", "txtInstNm", "txtInstAddr", "txtWaste"})));
        element("NINE-TEXT",
                escaped(list("A ", {"txtAverage", "txtPescribWidth", "txtBuildingHgt", "txtAbvCentStreet"})));
        element("TEN-TEXT", escaped(list("A ", {"txtNoTeneExist", "txtTenePropose"})));
        element("REMARK2", escaped(a("txtRmk2")));
        file += "</SECTION-II><SECTION-III>";
        element("ELEVEN-RAD", forms["A Opt18"]);
        element("ELEVEN-TEXT", escaped(list("A ", {"txtPlinthArea", "txtFloorArea", "txtDevRights", "txtTotTene"})));
        element("REMARK3", escaped(a("txtRmk3")));
        file += "</SECTION-III>";
    }

    Texts sectionFourValues() {
        const std::map<std::string, std::string> chowk = {{"11", "1#1#2"}, {"10", "1#01#2"}, {"12", "1#21#2"},
                                                          {"01", "0#2#1"}, {"00", "0#2#0"},  {"02", "0#2#2"}};
        const std::string room = forms["C Opt22"];
        return {forms["C Opt19"],
                c("txtDistCentStreet"),
                opened("C Opt20", {"C Opt21"}),
                room == "2" ? "2#2#2" : chowk.at(room + forms[room == "1" ? "C Opt23" : "C Opt24"]),
                list("C ", {"txtDiaInnerChowk", "txtDiaOuterChowk"}),
                opened("C Opt25", {"C Opt26"}),
                list("C ", {"txtLiftTyp", "txtLiftPassCap", "txtNoLift", "txtDoorTyp", "txtFireDetail"}),
                opened("C Opt27", {"C Opt28"}),
                c("txtRmk4")};
    }

    Texts sectionFiveValues() {
        return {forms["C Opt29"],
                forms["C Opt29"],
                list("C ", {"txtWidthMeanAccess", "txtRightWay", "txtAttachDoc", "txtClearHgt"}),
                forms["C Opt31"],
                c("txtHgtEnroch"),
                forms["C Opt32"] + "#" + forms["C Opt33"],
                c("txtCompWallHgt"),
                opened("C Opt34", {"C Opt35"}) + "#" + forms["C Opt36"] + "#" + forms["C Opt37"],
                c("txtProvAnteena"),
                c("txtNotComply"),
                forms["C Opt38"] + "#" + forms["C Opt39"],
                list("C ", {"txtFillLevel", "txtLevelRoad", "txtPlinthHgtRoad"}),
                list("C ", {"txtRoofs", "txtFloor", "txtWall", "txtColumns", "txtBeam", "txtOtherItem"}),
                list("C ", {"txtWaterCloset", "txtNoBath", "txtNoUrinal", "txtNoKitchen"}),
                c("txtWaterSource"),
                c("txtDistSwer"),
                c("txtMuncipalLand"),
                c("txtRmk5")};
    }

    void annexureB() {
        file += "<ANNEXUREB>";
        std::istringstream elements(annexureElements);
        for (std::string form, kind, name; elements >> form >> kind >> name;) {
            const std::string value = forms[form + (kind == "yn" ? " " : " txt") + name];
            element(name, kind == "esc" ? escaped(value) : value);
        }
        element("Section9a3536", joined({forms["A Opt77"], forms["A txtFstStreetWidth"], forms["A txtFstExistingWidth"],
                                         forms["C txtHowManyTrees"], forms["C txtNoOfTreesAffected"]},
                                        "#"));
        file += "</ANNEXUREB>";
    }

    Forms& forms;
    std::string file;
};

}  // namespace

Prediction predict(const std::string& firstFile, const std::vector<int>& villages, const std::string& today) {
    Forms forms(villages, today);
    const std::optional<Element> root = rootOf(firstFile);
    Opening(forms, root).run();
    const std::vector<Message> boxes = forms.boxes;
    return {boxes, Saving(forms).run()};
}

}  // namespace plandesk::test
