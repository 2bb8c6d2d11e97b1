#include "TestBench.hpp"
#include <corvane/workbench/kit/Rows.hpp>
#include <corvane/workbench/kit/Skill.hpp>
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/model/ElementReference.hpp>

#include <array>
#include <functional>
#include <stdexcept>

namespace corvane::tests {
namespace {

/// What is said about a description, which is given the fields below.
struct Fields {
    enum class Drive { Fixed, Variable };

    double number = 0;
    double other = 0;
    std::string text;
    std::string undescribed;
    Drive drive = Drive::Fixed;
    json::Object settings;
};

template <class Described>
class Element final : public kit::Element, public Fields {
    void describe(kit::Form& form) override { Described::describe(form, *this); }
};

template <class Described>
class Row final : public kit::Row, public Fields {
    void describe(kit::Form& form) override { Described::describe(form, *this); }
};

template <class Described>
class ElementWithRows final : public kit::Element {
    void describe(kit::Form& form) override { form.rows("rows", "Rows", rows_); }

    kit::Rows<Row<Described>> rows_;
};

template <class E>
std::string mistakeIn() {
    try {
        testClass<E>().check();
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return "none";
}

/// The first mistake in the description of an element, without the class.
template <class Described>
std::string mistake() {
    const std::string message = mistakeIn<Element<Described>>();
    constexpr std::string_view kPlace = "the element class \"Test\": ";
    return message.starts_with(kPlace) ? message.substr(kPlace.size()) : message;
}

/// The same for a row.
template <class Described>
std::string mistakeInRow() {
    const std::string message = mistakeIn<ElementWithRows<Described>>();
    constexpr std::string_view kPlace = "the element class \"Test\", a row of \"rows\": ";
    return message.starts_with(kPlace) ? message.substr(kPlace.size()) : message;
}

TEST(CheckedDescription, IsRightWhenNothingIsWrong) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            const auto number = form.number("number", "Number", fields.number);
            form.number("other", "Other", fields.other)
                .rule([] { return true; }, "No.", fields.number)
                .visibleIf([] { return true; }, number)
                .follows(number);
            form.choice("drive", "Drive", fields.drive, {"fixed", "variable"});
        }
    };
    EXPECT_EQ(mistake<Described>(), "none");
    EXPECT_EQ(mistakeInRow<Described>(), "none");
}

TEST(CheckedDescription, NamesEachSetting) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("", "Number", fields.number);
        }
    };
    EXPECT_EQ(mistake<Described>(), "a setting needs a name");
}

TEST(CheckedDescription, HasADisplayNameForEachSetting) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "", fields.number);
        }
    };
    EXPECT_EQ(mistake<Described>(), "\"number\" needs a display name");
}

template <std::size_t Index>
struct UnaddressableName {
    static void describe(kit::Form& form, Fields& fields) {
        static constexpr std::array<kit::Text, 4> kNames{"a.b", "a[b", "a]b", "a=b"};
        form.number(kNames[Index], "Number", fields.number);
    }
};

TEST(CheckedDescription, HasNamesThatCanStandInAddresses) {
    constexpr const char* kRule =
        "the name of a setting must not contain \".\", \"[\", \"]\" or \"=\", as ";
    EXPECT_EQ(mistake<UnaddressableName<0>>(), kRule + std::string("\"a.b\" does"));
    EXPECT_EQ(mistake<UnaddressableName<1>>(), kRule + std::string("\"a[b\" does"));
    EXPECT_EQ(mistake<UnaddressableName<2>>(), kRule + std::string("\"a]b\" does"));
    EXPECT_EQ(mistake<UnaddressableName<3>>(), kRule + std::string("\"a=b\" does"));
}

template <std::size_t Index>
struct ReservedName {
    static void describe(kit::Form& form, Fields& fields) {
        static constexpr std::array<kit::Text, 4> kNames{"name", "UUID", "ACL", "children"};
        form.number(kNames[Index], "Number", fields.number);
    }
};

TEST(CheckedDescription, LeavesReservedNamesToElements) {
    EXPECT_EQ(mistake<ReservedName<0>>(), "the name \"name\" is reserved");
    EXPECT_EQ(mistake<ReservedName<1>>(), "the name \"UUID\" is reserved");
    EXPECT_EQ(mistake<ReservedName<2>>(), "the name \"ACL\" is reserved");
    EXPECT_EQ(mistake<ReservedName<3>>(), "the name \"children\" is reserved");
    EXPECT_EQ(mistakeInRow<ReservedName<0>>(), "none") << "rows have no such members";
}

TEST(CheckedDescription, NamesNoTwoSettingsAlike) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "Number", fields.number);
            form.text("number", "Text", fields.text);
        }
    };
    EXPECT_EQ(mistake<Described>(), "two settings are named \"number\"");
    EXPECT_EQ(mistakeInRow<Described>(), "two settings are named \"number\"");
}

TEST(CheckedDescription, HasAFieldForEachSetting) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "Number", fields.number);
            form.number("other", "Other", fields.number);
        }
    };
    EXPECT_EQ(mistake<Described>(), "the field of \"other\" belongs to another setting already");
}

TEST(CheckedDescription, HasTextsToChooseFrom) {
    struct None {
        static void describe(kit::Form& form, Fields& fields) {
            form.choice("drive", "Drive", fields.drive, std::span<const kit::Text>());
        }
    };
    struct Same {
        static void describe(kit::Form& form, Fields& fields) {
            form.choice("drive", "Drive", fields.drive, {"fixed", "fixed"});
        }
    };
    struct Empty {
        static void describe(kit::Form& form, Fields& fields) {
            form.choice("drive", "Drive", fields.drive, {"fixed", ""});
        }
    };
    EXPECT_EQ(mistake<None>(), "\"drive\" needs texts to choose from");
    EXPECT_EQ(mistake<Same>(), "\"drive\" needs a different text for each of its choices");
    EXPECT_EQ(mistake<Empty>(), "\"drive\" needs a different text for each of its choices");
}

TEST(CheckedDescription, HasATextForTheValueOfAChoice) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            fields.drive = Fields::Drive::Variable;
            form.choice("drive", "Drive", fields.drive, {"fixed"});
        }
    };
    EXPECT_EQ(mistake<Described>(), "\"drive\" has a value that is not one of its choices");
}

template <class Dependency>
struct DependsOnMore {
    static void describe(kit::Form& form, Fields& fields) {
        auto number = form.number("number", "Number", fields.number);
        Dependency::describe(form, fields, number);
    }
};

TEST(CheckedDescription, DependsOnSettingsOnly) {
    struct State {
        static void describe(kit::Form&, Fields& fields, kit::Setting<double>& number) {
            number.rule([] { return true; }, "No.", fields.undescribed);
        }
    };
    struct Value {
        static void describe(kit::Form&, Fields& fields, kit::Setting<double>& number) {
            number.follows(fields.undescribed);
        }
    };
    struct Visible {
        static void describe(kit::Form&, Fields& fields, kit::Setting<double>& number) {
            number.visibleIf([] { return true; }, fields.undescribed);
        }
    };
    struct Derived {
        static void describe(kit::Form& form, Fields& fields, kit::Setting<double>&) {
            form.derived("derived", "Derived", [] { return std::wstring(); })
                .follows(fields.undescribed);
        }
    };
    struct Member {
        static void describe(kit::Form& form, Fields& fields, kit::Setting<double>&) {
            form.task("stop").onlyIf([] { return true; }, fields.undescribed);
        }
    };
    constexpr const char* kMistake = " depends on something that is not described as a setting";
    EXPECT_EQ(mistake<DependsOnMore<State>>(), std::string("\"number\"") + kMistake);
    EXPECT_EQ(mistake<DependsOnMore<Value>>(), std::string("\"number\"") + kMistake);
    EXPECT_EQ(mistake<DependsOnMore<Visible>>(), std::string("\"number\"") + kMistake);
    EXPECT_EQ(mistake<DependsOnMore<Derived>>(), std::string("\"derived\"") + kMistake);
    EXPECT_EQ(mistake<DependsOnMore<Member>>(), std::string("the task \"stop\"") + kMistake);
}

TEST(CheckedDescription, MayDependOnWhatIsDescribedLater) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "Number", fields.number).follows(fields.other);
            form.number("other", "Other", fields.other);
        }
    };
    EXPECT_EQ(mistake<Described>(), "none");
}

TEST(CheckedDescription, HasOneDisplayNameForARowAndNoneForAnElement) {
    struct Twice {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "Number", fields.number);
            form.displayName([] { return std::wstring(); });
            form.displayName([] { return std::wstring(); });
        }
    };
    struct Dependent {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "Number", fields.number);
            form.displayName([] { return std::wstring(); }).follows(fields.other);
        }
    };
    EXPECT_EQ(mistakeInRow<Twice>(), "the display name is described twice");
    EXPECT_EQ(mistake<Twice>(), "only rows have a display name of their own");
    EXPECT_EQ(mistakeInRow<Dependent>(),
              "the display name depends on something that is not described as a setting");
}

TEST(CheckedDescription, WritesARowAsTheValueOfItsOnlySetting) {
    struct Two {
        static void describe(kit::Form& form, Fields& fields) {
            form.writtenAsValue();
            form.number("number", "Number", fields.number);
            form.number("other", "Other", fields.other);
        }
    };
    struct Late {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("number", "Number", fields.number);
            form.writtenAsValue();
        }
    };
    struct None {
        static void describe(kit::Form& form, Fields&) { form.writtenAsValue(); }
    };
    EXPECT_EQ(mistakeInRow<Two>(), "a row that is written as a value has exactly one setting");
    EXPECT_EQ(mistakeInRow<None>(), "a row that is written as a value has exactly one setting");
    EXPECT_EQ(mistakeInRow<Late>(),
              "that a row is written as a value is said before its setting is described");
    EXPECT_EQ(mistake<None>(), "only rows are written as values");
}

template <std::size_t Index>
struct MemberNamed {
    static void describe(kit::Form& form, Fields&) {
        static constexpr std::array<kit::Text, 6> kNames{"", "a.b", "[a", "[]", "[a]b", "[a.b]"};
        form.event(kNames[Index]);
    }
};

TEST(CheckedDescription, HasMembersThatCanBeNamedInKeys) {
    const auto sentence = [](const std::string& name) {
        return "the event \"" + name +
               "\" cannot be named in a key: a name is not empty and has no dot, or stands in "
               "brackets";
    };
    EXPECT_EQ(mistake<MemberNamed<0>>(), sentence(""));
    EXPECT_EQ(mistake<MemberNamed<1>>(), sentence("a.b"));
    EXPECT_EQ(mistake<MemberNamed<2>>(), sentence("[a"));
    EXPECT_EQ(mistake<MemberNamed<3>>(), sentence("[]"));
    EXPECT_EQ(mistake<MemberNamed<4>>(), sentence("[a]b"));
    EXPECT_EQ(mistake<MemberNamed<5>>(), "none");
    EXPECT_EQ(mistakeInRow<MemberNamed<5>>(), "rows have no members such as the event \"[a.b]\"");
}

TEST(CheckedDescription, HasNoAttributeThatEveryElementHas) {
    struct Own {
        static void describe(kit::Form& form, Fields&) {
            form.attribute("key", model::Attribute::Access::ReadOnly, {2, 8});
        }
    };
    struct Predefined {
        static void describe(kit::Form& form, Fields&) { form.attribute(model::Attribute::kType); }
    };
    struct Event {
        static void describe(kit::Form& form, Fields&) { form.event("key"); }
    };
    EXPECT_EQ(mistake<Own>(), "every element has the attribute \"key\"");
    EXPECT_EQ(mistake<Predefined>(), "every element has the attribute \"type\"");
    EXPECT_EQ(mistake<Event>(), "none");
}

TEST(CheckedDescription, HasNoTwoMembersOfAKindThatAreNamedAlike) {
    struct Alike {
        static void describe(kit::Form& form, Fields&) {
            form.event(process::Event::kChanged);
            form.event("changed");
        }
    };
    struct OtherKind {
        static void describe(kit::Form& form, Fields&) {
            form.event("stop");
            form.task("stop");
        }
    };
    EXPECT_EQ(mistake<Alike>(), "the event \"changed\" is described twice");
    EXPECT_EQ(mistake<OtherKind>(), "none");
}

/// Says something about a number when the next setting has begun.
template <auto Say>
struct TooLate {
    static void describe(kit::Form& form, Fields& fields) {
        const auto number = form.number("number", "Number", fields.number);
        form.text("text", "Text", fields.text);
        Say(number);
    }
};

using Number = kit::Setting<double>;

TEST(CheckedDescription, SaysEverythingAboutASettingBeforeTheNextOne) {
    const std::string sentence =
        "what is said about “text” is meant for something that was described before it";
    const auto late = []<auto Say>() { return mistake<TooLate<Say>>(); };
    EXPECT_EQ((late.operator()<[](const Number& number) { number.initially(5); }>()), sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.generated([] { return 5; }); }>()),
              sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.unit("kW"); }>()), sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.toolTip("A tip."); }>()),
              sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.readOnly(); }>()), sentence);
    EXPECT_EQ(
        (late.operator()<[](const Number& number) { number.rule([] { return true; }, "No."); }>()),
        sentence);
    EXPECT_EQ(
        (late.operator()<[](const Number& number) { number.rule([] { return kit::State(); }); }>()),
        sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.range(1, 2); }>()), sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.required(); }>()), sentence);
    EXPECT_EQ(
        (late.operator()<[](const Number& number) { number.visibleIf([] { return true; }); }>()),
        sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.savedWhenVisible(); }>()),
              sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.savedWhenNotInitial(); }>()),
              sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.follows(); }>()), sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.raises({}); }>()), sentence);
    EXPECT_EQ((late.operator()<[](const Number& number) { number.then([] {}); }>()), sentence);
}

class HandWritten final : public skill::Element {
    void forEachEditableProperty(
        utils::core::function_ref<void(const skill::EditableProperty&)>) override {}
};

TEST(CheckedDescription, IsNotAskedOfAnElementThatIsWrittenByHand) {
    EXPECT_EQ(mistakeIn<HandWritten>(), "none");
}

TEST(CheckedDescription, IsReportedAsAProblemWhenTheSkillIsAdded) {
    struct Described {
        static void describe(kit::Form& form, Fields& fields) {
            form.number("name", "Name", fields.number);
        }
    };
    const kit::Skill skill({.id = "Wrong", .displayName = "Wrong", .version = "1.0"},
                           {testClass<Element<Described>>()});
    host::Workbench workbench;
    const auto added = workbench.addSkill(skill);
    ASSERT_FALSE(added);
    EXPECT_EQ(added.error().text, "the skill “Wrong” cannot be used: the element class \"Test\": "
                                  "the name \"name\" is reserved");
    EXPECT_TRUE(workbench.skills().empty());
    EXPECT_EQ(workbench.elementClasses().find("Test"), nullptr);
}

} // namespace
} // namespace corvane::tests
