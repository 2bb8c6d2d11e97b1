#include <corvane/workbench/kit/Rows.hpp>

#include "TestBench.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/model/ElementReference.hpp>

#include <cstdint>
#include <functional>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <typeinfo>

namespace corvane::tests {
namespace {

class Tank;

class Dose final : public kit::Row {
public:
    using kit::Row::changed;
    using kit::Row::owner;

    void describe(kit::Form& form) override;

    double litres = 0;
    model::ElementReference from;
    /// Thrown when the next row describes its properties, when not empty.
    static std::string failure;
};

std::string Dose::failure;

class Tank final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.number("capacity", "Capacity", capacity).initially(100).then([this] {
            doses.recheck();
        });
        form.rows("doses", "Doses", doses)
            .rule([this] { return dosesState(); }, capacity)
            .proposes(&Dose::litres, [this] { return capacity / 10; });
    }
    using kit::Element::changed;

    [[nodiscard]] kit::State dosesState() const {
        double sum = 0;
        for (const Dose& dose : doses) {
            sum += dose.litres;
        }
        return kit::require(sum <= capacity, "Too much.");
    }

    double capacity = 0;
    kit::Rows<Dose> doses;
};

void Dose::describe(kit::Form& form) {
    if (!failure.empty()) {
        throw std::runtime_error(std::exchange(failure, {}));
    }
    form.number("litres", "Litres", litres)
        .rule([this] { return litres <= owner<Tank>().capacity / 2; }, "More than half.");
    form.reference("from", "From", from).optional();
}

static_assert(std::input_iterator<kit::Rows<Dose>::Iterator>);

class Rows : public ::testing::Test {
protected:
    /// Replaces the element by one with rows of these amounts.
    kit::Rows<Dose>& loaded(const std::vector<double>& litres) {
        std::string members = "\"doses\": [";
        for (const double amount : litres) {
            members += members.ends_with('[') ? "" : ", ";
            members += R"({"litres": )" + std::to_string(amount) + "}";
        }
        bench.loadSettings(members + "]");
        return bench.object().doses;
    }
    [[nodiscard]] static std::vector<double> litresOf(const kit::Rows<Dose>& doses) {
        std::vector<double> litres;
        for (const Dose& dose : doses) {
            litres.push_back(dose.litres);
        }
        return litres;
    }

    TestBench<Tank> bench;
};

TEST_F(Rows, AreLoadedAndSavedAsObjectsInTheirOrder) {
    bench.loadSettings(R"("doses": [{"litres": 2, "from": "E"}, {"from": "", "litres": 1}])");
    EXPECT_THAT(litresOf(bench.object().doses), ElementsAre(2, 1));
    EXPECT_EQ(bench.savedSettings(),
              R"({"capacity":100,"doses":[{"litres":2,"from":"E"},{"litres":1,"from":""}]})");
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Rows, AreSavedAsAnEmptyListWhenThereAreNone) {
    EXPECT_EQ(bench.savedSettings(), R"({"capacity":100,"doses":[]})");
}

TEST_F(Rows, AreRefusedWithTheirPlaceInTheFile) {
    EXPECT_THAT(bench.problemsOf(R"("doses": {})"),
                ElementsAre("configuration.json:2:10: error: expected an array, found an object"));
    EXPECT_THAT(bench.problemsOf(R"("doses": [{}, 5])"),
                ElementsAre("configuration.json:2:15: error: expected an object, found a number"));
    EXPECT_THAT(bench.problemsOf(R"("doses": [{"litres": ""}])"),
                ElementsAre("configuration.json:2:22: error: expected a number, found a string"));
}

TEST_F(Rows, AreShownAsTheirNumberAndNamedByTheirFirstSetting) {
    EXPECT_THAT(bench.setting("doses"), HasText("no rows"));
    loaded({1.5});
    EXPECT_THAT(bench.setting("doses"), HasText("1 row"));
    loaded({1.5, 2});
    EXPECT_THAT(bench.setting("doses"), HasText("2 rows"));
    EXPECT_THAT(bench.setting("doses"), HasRows("1.5", "2"));
}

TEST_F(Rows, AreARange) {
    kit::Rows<Dose>& doses = loaded({1, 2});
    EXPECT_EQ(doses.size(), 2U);
    EXPECT_FALSE(doses.empty());
    EXPECT_TRUE(kit::Rows<Dose>().empty());
    auto iterator = doses.begin();
    EXPECT_EQ(&*iterator++, &doses[0]);
    EXPECT_EQ(&*iterator, &doses[1]);
    EXPECT_EQ(++iterator, doses.end());
}

TEST_F(Rows, AreInsertedAtAnyPlace) {
    for (std::size_t index = 0; index <= 3; ++index) {
        kit::Rows<Dose>& doses = loaded({1, 2, 3});
        const Dose& inserted = doses.insert(index);
        EXPECT_EQ(&inserted, &doses[index]);
        EXPECT_EQ(doses.size(), 4U);
    }
}

TEST_F(Rows, AreRemovedFromAnyPlace) {
    kit::Rows<Dose>& doses = loaded({1, 2, 3});
    doses.remove(1);
    EXPECT_THAT(litresOf(doses), ElementsAre(1, 3));
    doses.remove(1);
    EXPECT_THAT(litresOf(doses), ElementsAre(1));
    doses.remove(0);
    EXPECT_TRUE(doses.empty());
}

TEST_F(Rows, AreMovedToWhereTheyStandAfterwards) {
    for (std::size_t from = 0; from < 4; ++from) {
        for (std::size_t to = 0; to < 4; ++to) {
            kit::Rows<Dose>& doses = loaded({0, 1, 2, 3});
            std::vector<double> expected{0, 1, 2, 3};
            expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(from));
            expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(to),
                            static_cast<double>(from));
            doses.move(from, to);
            EXPECT_EQ(litresOf(doses), expected) << from << " to " << to;
        }
    }
}

TEST_F(Rows, AreNotTouchedBeyondTheEnd) {
    kit::Rows<Dose>& doses = loaded({1});
    EXPECT_THROW(doses.insert(2), std::out_of_range);
    EXPECT_THROW(doses.remove(1), std::out_of_range);
    EXPECT_THROW(doses.move(0, 1), std::out_of_range);
    EXPECT_THROW(doses.move(1, 0), std::out_of_range);
    EXPECT_EQ(doses.size(), 1U);
}

TEST_F(Rows, OfTheUserAreRefusedBeyondTheEnd) {
    loaded({1});
    const skill::EditableProperty list = bench.setting("doses").property();
    EXPECT_EQ(list.insertSubElement(2).error(), L"The list has no row of that number.");
    EXPECT_EQ(list.removeSubElement(1).error(), L"The list has no row of that number.");
    EXPECT_EQ(list.moveSubElement(0, 1).error(), L"The list has no row of that number.");
    EXPECT_EQ(list.moveSubElement(1, 0).error(), L"The list has no row of that number.");
}

TEST_F(Rows, AnnounceWhatIsDoneToTheList) {
    loaded({1, 2});
    bench.setting("doses").insertRow(2);
    EXPECT_THAT(bench, Announced("value       E.doses: 3 rows  (row 2 inserted)"));
    bench.setting("doses").moveRow(2, 0);
    EXPECT_THAT(bench, Announced("value       E.doses: 3 rows  (row moved to 0)"));
    bench.setting("doses").removeRow(1);
    EXPECT_THAT(bench, Announced("value       E.doses: 2 rows  (row 1 removed)"));
    bench.setting("doses").moveRow(1, 1);
    EXPECT_THAT(bench, Announced(""));
}

TEST_F(Rows, PublishTheListWhenTheirSettingsChange) {
    loaded({30, 30});
    bench.setting("doses[1].litres").set("90");
    EXPECT_THAT(bench, Announced(R"(
        value       E.doses.1.litres: 90
        state       E.doses.1.litres: error: More than half.
        errors      E: 1
        errors      (root): 1
        value       E.doses: 2 rows
        state       E.doses: error: Too much.
        errors      E: 2
        errors      (root): 2)"));
}

TEST_F(Rows, AreCountedWithTheirErrorsWhenTheyComeAndGo) {
    kit::Rows<Dose>& doses = loaded({60, 10});
    EXPECT_THAT(bench, HasErrors(1));
    doses.insert(0).litres = 55;
    doses[0].changed(doses[0].litres);
    EXPECT_THAT(bench, HasErrors(3)) << "two rows and their sum";
    doses.remove(1);
    EXPECT_THAT(bench, HasErrors(1));
    doses.remove(0);
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Rows, AreRecheckedWhenWhatTheirRulesLookAtChanges) {
    loaded({30});
    bench.setting("capacity").set("50");
    EXPECT_THAT(bench.setting("doses[0].litres"), HasError("More than half."));
}

TEST_F(Rows, KeepTheirAddresses) {
    kit::Rows<Dose>& doses = loaded({1, 2});
    const Dose* const first = &doses[0];
    const Dose* const second = &doses[1];
    for (int time = 0; time < 50; ++time) {
        doses.insert(0);
    }
    doses.move(50, 3);
    EXPECT_EQ(&doses[3], first);
    EXPECT_EQ(&doses[51], second);
}

TEST_F(Rows, HoldReferencesThatFollowTheirElements) {
    bench.setting("doses").insertRow(0);
    bench.setting("doses[0].from").set("E");
    bench.element("E").rename("F");
    EXPECT_THAT(bench.at("F.doses[0].from"), HasText("F"));
    EXPECT_THAT(bench.element("F").referrers(), ElementsAre("F.doses.0.from"));
}

TEST_F(Rows, ContinueTheNumbersBesideThem) {
    kit::Rows<Dose>& doses = loaded({});
    EXPECT_EQ(doses.insert(0).litres, 0);
    EXPECT_EQ(doses.insert(1).litres, 10);
    EXPECT_EQ(doses.insert(2).litres, 20);
    EXPECT_EQ(doses.insert(1).litres, 10);
    EXPECT_EQ(doses.insert(0).litres, -10);
}

TEST_F(Rows, KnowTheirOwner) {
    kit::Rows<Dose>& doses = loaded({1});
    EXPECT_EQ(&doses[0].owner<Tank>(), &bench.object());
    EXPECT_THROW(static_cast<void>(doses[0].owner<kit::Row>()), std::bad_cast);
    EXPECT_THROW(static_cast<void>(Dose().owner<Tank>()), std::logic_error);
    kit::Rows<Dose> apart;
    EXPECT_THROW(static_cast<void>(apart.insert(0).owner<Tank>()), std::logic_error);
}

TEST_F(Rows, AreCopiedWithTheirElementAndShareNothingWithTheOriginal) {
    Tank& original = bench.object();
    original.doses.insert(0).litres = 60;
    original.doses[0].changed(original.doses[0].litres);
    static_cast<void>(original.propertyErrorCount());
    Tank copy(original);
    EXPECT_THAT(litresOf(copy.doses), ElementsAre(60));
    EXPECT_NE(&copy.doses[0], &original.doses[0]);
    EXPECT_EQ(copy.propertyErrorCount(), 1U);
    EXPECT_EQ(&copy.doses[0].owner<Tank>(), &copy);
    copy.doses.insert(1).litres = 70;
    copy.doses[1].changed(copy.doses[1].litres);
    copy.doses.remove(0);
    EXPECT_THAT(litresOf(original.doses), ElementsAre(60));
    EXPECT_EQ(original.propertyErrorCount(), 1U);
    EXPECT_EQ(copy.propertyErrorCount(), 1U);
}

TEST_F(Rows, StayAsTheyAreWhenANewOneCannotBeMade) {
    kit::Rows<Dose>& doses = loaded({1, 2});
    static_cast<void>(bench.object().propertyErrorCount());
    Dose::failure = "not now";
    EXPECT_THROW(doses.insert(1), std::runtime_error);
    EXPECT_THAT(litresOf(doses), ElementsAre(1, 2));
    EXPECT_NO_THROW(doses.insert(1));
}

class RefusingRow final : public kit::Row {
public:
    void describe(kit::Form& form) override { form.number("level", "Level", level); }
    void configureProperties(PropertyConfigurationContext& context) override {
        if (refuses) {
            throw std::runtime_error("not now");
        }
        kit::Row::configureProperties(context);
    }

    double level = 0;
    static bool refuses;
};

bool RefusingRow::refuses = false;

class RefusingList final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.rows("rows", "Rows", rows); }

    kit::Rows<RefusingRow> rows;
};

TEST_F(Rows, StayAsTheyAreWhenANewOneCannotBeConfigured) {
    TestBench<RefusingList> refusing;
    kit::Rows<RefusingRow>& rows = refusing.object().rows;
    static_cast<void>(refusing.errorCount());
    rows.insert(0);
    RefusingRow::refuses = true;
    EXPECT_THROW(rows.insert(0), std::runtime_error);
    RefusingRow::refuses = false;
    EXPECT_EQ(rows.size(), 1U);
    rows.insert(0);
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_THAT(refusing, HasErrors(0));
}

class RowsWhilePublished : public Rows {
protected:
    Tank& object = bench.object();
};

TEST_F(RowsWhilePublished, CanBeInserted) {
    static_cast<void>(object.propertyErrorCount());
    std::vector<std::size_t> sizes;
    const auto subscription = object.property(object.doses).subscribe({.value = [&] {
        sizes.push_back(object.doses.size());
        if (object.doses.size() < 3) {
            object.doses.insert(0);
        }
    }});
    object.doses.insert(0);
    EXPECT_EQ(object.doses.size(), 2U) << "the nested publication calls nobody back";
    EXPECT_THAT(sizes, ElementsAre(1U));
    object.doses.insert(1).litres = 60;
    object.doses.recheck();
    EXPECT_EQ(object.propertyErrorCount(), 1U);
}

TEST_F(RowsWhilePublished, CanBeRemovedTheNewOneIncluded) {
    static_cast<void>(object.propertyErrorCount());
    const auto subscription = object.property(object.doses).subscribe({.value = [&] {
        while (!object.doses.empty()) {
            object.doses.remove(0);
        }
    }});
    EXPECT_TRUE(bench.setting("doses").property().insertSubElement(0));
    EXPECT_TRUE(object.doses.empty());
    EXPECT_EQ(object.propertyErrorCount(), 0U);
}

class Cell final : public kit::Row {
public:
    void describe(kit::Form& form) override {
        form.integer("octet", "Octet", octet);
        form.integer("number", "Number", number);
    }

    std::uint8_t octet = 0;
    int number = 0;
};

class Table final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.rows("octets", "Octets", octets).proposes(&Cell::octet, 10);
        form.rows("numbers", "Numbers", numbers).proposes(&Cell::number, 1);
        form.rows("prepared", "Prepared", prepared).proposes([this](Cell& cell, std::size_t index) {
            cell.number = static_cast<int>(10 * prepared.size() + index);
        });
    }

    kit::Rows<Cell> octets;
    kit::Rows<Cell> numbers;
    kit::Rows<Cell> prepared;
};

TEST(ProposedRows, StayWithinTheBoundsOfTheirField) {
    TestBench<Table> bench;
    kit::Rows<Cell>& octets = bench.object().octets;
    octets.insert(0).octet = 250;
    EXPECT_EQ(octets.insert(1).octet, 255);
    octets[0].octet = 5;
    EXPECT_EQ(octets.insert(0).octet, 0);
}

TEST(ProposedRows, StepThroughWholeNumbers) {
    TestBench<Table> bench;
    kit::Rows<Cell>& numbers = bench.object().numbers;
    EXPECT_EQ(numbers.insert(0).number, 0);
    EXPECT_EQ(numbers.insert(1).number, 1);
    EXPECT_EQ(numbers.next(&Cell::number, 0, 5), -5);
    EXPECT_EQ(numbers.next(&Cell::number, 2, 0.5), 1) << "whole numbers are cut off";
}

TEST(ProposedRows, AreWhatAFunctionMakesOfThem) {
    TestBench<Table> bench;
    kit::Rows<Cell>& prepared = bench.object().prepared;
    EXPECT_EQ(prepared.insert(0).number, 0);
    EXPECT_EQ(prepared.insert(1).number, 11);
    EXPECT_EQ(prepared.insert(0).number, 20);
}

} // namespace
} // namespace corvane::tests
