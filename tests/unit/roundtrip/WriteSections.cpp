#include "unit/roundtrip/Sections.h"

namespace plandesk::test {

namespace {

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
    void element(const std::string& name, const std::string& value) { file += test::element(name, value); }
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

std::optional<std::string> writeSections(Forms& forms) {
    return Saving(forms).run();
}

}  // namespace plandesk::test
