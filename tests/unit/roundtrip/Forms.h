#pragma once

#include <cmath>
#include <map>
#include <sstream>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "controls/Ports.h"
#include "unit/roundtrip/Fields.h"

namespace plandesk::test {

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

}  // namespace plandesk::test
