#include "ui/form.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "ui/control_makers.h"

namespace tessaplot::ui {
namespace {

/// A form that notes what reaches its logic; OK closes it once its text is "good".
class Sample : public Form {
 public:
    Sample() : Form("frmSample", "Sample") {
        Control& first = add(checkBox("Check1", "Check", false));
        for (const char* name : {"Option1", "Option2", "Option3"})
            add(optionButton(name, name, false));
        add(textBox("Text1", "Text", ""));
        add(comboBox("Combo1", "Combo", {{"a"}, {"b"}}, -1));
        Control slider;
        slider.kind = ControlKind::Slider;
        slider.name = "Slider1";
        slider.minimum = -1;
        add(slider);
        add(button("Command1", "Press"));
        first.caption = "Kept";
        addPage({"", {{"", {{"Check1"}, {"Option1", "Option2"}}}, {"", {{"Option3"}, {"Text1"}}}}});
    }
    std::vector<std::string> log;

 protected:
    void changed(Control& control) override { log.push_back("changed " + control.name); }
    void pressed(Control& control) override { log.push_back("pressed " + control.name); }
    void ok() override {
        log.push_back("ok");
        if (control("Text1").text == "good") close();
    }
    void dismissed() override { log.push_back("dismissed"); }
};

TEST(Form, controlsStayWhereTheyAreAndUnknownNamesFail) {
    Sample form;
    EXPECT_EQ(form.control("Check1").caption, "Kept");
    EXPECT_THROW(form.control("Check2"), base::Failure);
    EXPECT_THROW(form.setText("Text2", "x"), base::Failure);
}

TEST(Form, optionButtonsExcludeEachOtherWithinTheirFrame) {
    Sample form;
    form.setOn("Option1", true);
    form.setOn("Option3", true);
    form.setOn("Option2", true);
    EXPECT_FALSE(form.control("Option1").on);
    EXPECT_TRUE(form.control("Option2").on);
    EXPECT_TRUE(form.control("Option3").on) << "of another frame";
    form.setOn("Option2", false);
    EXPECT_TRUE(form.control("Option2").on) << "only another option switches one off";
}

TEST(Form, actionsReachTheLogicOnlyIfTheyChangeAUsableControl) {
    Sample form;
    form.setText("Text1", "");
    form.select("Combo1", 2);
    form.select("Combo1", -1);
    form.control("Check1").enabled = false;
    form.setOn("Check1", true);
    form.control("Command1").visible = false;
    form.click("Command1");
    EXPECT_THAT(form.log, testing::IsEmpty());
    form.select("Combo1", 1);
    form.slide("Slider1", -7);
    EXPECT_EQ(form.control("Slider1").value, -1);
    form.control("Command1").visible = true;
    form.click("Command1");
    EXPECT_THAT(form.log, testing::ElementsAre("changed Combo1", "changed Slider1", "pressed Command1"));
}

TEST(Form, staysOpenUntilOkIsContentOrItIsCancelled) {
    Sample form;
    form.accept();
    EXPECT_TRUE(form.isOpen());
    form.setText("Text1", "good");
    form.accept();
    EXPECT_FALSE(form.isOpen());
    form.accept();
    form.cancel();
    form.click("Command1");
    EXPECT_THAT(form.log, testing::ElementsAre("ok", "changed Text1", "ok")) << "a closed form takes nothing";

    Sample other;
    other.cancel();
    EXPECT_FALSE(other.isOpen());
    EXPECT_THAT(other.log, testing::ElementsAre("dismissed"));
}

}  // namespace
}  // namespace tessaplot::ui
