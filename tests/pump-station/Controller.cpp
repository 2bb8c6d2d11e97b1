#include "PumpStationTest.hpp"

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Controller : public PumpStationTest {
protected:
    Controller() { add("", "PumpStation.Controller", "PLC"); }
};

TEST_F(Controller, StartsValid) {
    EXPECT_EQ(errorCount(), 0U);
    EXPECT_THAT(propertyNames("PLC"),
                ElementsAre("address", "port", "security", "certificate", "pollInterval",
                            "reconnectDelay", "commissioned", "assetId", "settings"));
    EXPECT_EQ(text("PLC", "address"), "192.168.0.10");
    EXPECT_EQ(text("PLC", "port"), "502");
    EXPECT_EQ(text("PLC", "security"), "none");
    EXPECT_EQ(text("PLC", "pollInterval"), "250ms");
    EXPECT_EQ(text("PLC", "reconnectDelay"), "5s");
    EXPECT_EQ(text("PLC", "commissioned"), "");
    EXPECT_EQ(text("PLC", "settings"), "");
}

TEST_F(Controller, GetsAnAssetIdOfItsOwn) {
    add("", "PumpStation.Controller", "PLC 2");
    EXPECT_EQ(text("PLC", "assetId").size(), 36U);
    EXPECT_NE(text("PLC", "assetId"), text("PLC 2", "assetId"));
}

TEST_F(Controller, NeedsAnAddress) {
    EXPECT_EQ(set("PLC", "address", ""), "");
    EXPECT_EQ(state("PLC", "address"), "Enter the address of the controller.");
    EXPECT_EQ(set("PLC", "address", "plc.example"), "");
    EXPECT_EQ(state("PLC", "address"), "");
}

TEST_F(Controller, NeedsAPortThatExists) {
    for (const char* port : {"0", "65536", "-1", "9223372036854775807"}) {
        EXPECT_EQ(set("PLC", "port", port), "");
        EXPECT_EQ(state("PLC", "port"), "The port must lie between 1 and 65535.") << port;
    }
    for (const char* port : {"1", "65535"}) {
        EXPECT_EQ(set("PLC", "port", port), "");
        EXPECT_EQ(state("PLC", "port"), "") << port;
    }
}

TEST_F(Controller, RefusesAPortThatIsNoWholeNumber) {
    EXPECT_EQ(set("PLC", "port", "5.5"), "“5.5” is not a whole number.");
    EXPECT_EQ(set("PLC", "port", ""), "“” is not a whole number.");
    EXPECT_EQ(text("PLC", "port"), "502");
}

TEST_F(Controller, ShowsTheCertificateOnlyWhenThereIsOne) {
    EXPECT_FALSE(visible("PLC", "certificate"));
    EXPECT_EQ(set("PLC", "security", "certificate"), "");
    EXPECT_TRUE(visible("PLC", "certificate"));
    EXPECT_EQ(state("PLC", "certificate"), "Enter the file name of the certificate.");
    EXPECT_EQ(errorCount(), 1U);
    EXPECT_EQ(set("PLC", "security", "none"), "");
    EXPECT_FALSE(visible("PLC", "certificate"));
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Controller, TellsWhoWatchesTheCertificateThatItIsHidden) {
    EXPECT_EQ(set("PLC", "security", "certificate"), "");
    record("PLC", "security");
    record("PLC", "certificate");
    recordErrorCount("PLC");
    recordErrorCount("");
    EXPECT_EQ(set("PLC", "security", "none"), "");
    EXPECT_THAT(calls, ElementsAre("security value Update 0", "certificate state ",
                                   "certificate hidden", "PLC errors 0", "root errors 0"));
}

TEST_F(Controller, SavesTheCertificateOnlyWhenThereIsOne) {
    EXPECT_EQ(set("PLC", "security", "certificate"), "");
    EXPECT_EQ(set("PLC", "certificate", "plc.pem"), "");
    EXPECT_THAT(saved(), HasSubstr("\"certificate\": \"plc.pem\""));
    EXPECT_EQ(set("PLC", "security", "none"), "");
    EXPECT_THAT(saved(), testing::Not(HasSubstr("plc.pem")));
}

TEST_F(Controller, RefusesASecurityThatIsNoChoice) {
    EXPECT_EQ(set("PLC", "security", "password"), "“password” is not one of the choices.");
    EXPECT_THAT(property("PLC", "security").choices, ElementsAre(L"none", L"certificate"));
}

TEST_F(Controller, NeedsAPollInterval) {
    EXPECT_EQ(set("PLC", "pollInterval", "0"), "");
    EXPECT_EQ(state("PLC", "pollInterval"), "The poll interval must be longer than 0.");
}

TEST_F(Controller, WaitsAtLeastAPollIntervalBeforeItReconnects) {
    record("PLC", "reconnectDelay");
    EXPECT_EQ(set("PLC", "pollInterval", "6s"), "");
    EXPECT_EQ(state("PLC", "reconnectDelay"),
              "The reconnect delay must not be shorter than the poll interval.");
    EXPECT_EQ(set("PLC", "pollInterval", "5000ms"), "");
    EXPECT_THAT(calls, ElementsAre("reconnectDelay state The reconnect delay must not be shorter "
                                   "than the poll interval.",
                                   "reconnectDelay state "));
}

TEST_F(Controller, RefusesWhatIsNoDuration) {
    EXPECT_EQ(set("PLC", "pollInterval", "5min"),
              "“5min” is not a duration; write for example “250ms” or “1.5h”.");
    EXPECT_EQ(text("PLC", "pollInterval"), "250ms");
}

TEST_F(Controller, CompletesATimeStampWhileItIsTyped) {
    EXPECT_EQ(set("PLC", "commissioned", "2024-05-06 07"), "");
    EXPECT_EQ(text("PLC", "commissioned"), "2024-05-06 07:00:00+00:00");
    EXPECT_EQ(state("PLC", "commissioned"), "");
    EXPECT_EQ(set("PLC", "commissioned", ""), "");
    EXPECT_EQ(text("PLC", "commissioned"), "");
    EXPECT_EQ(state("PLC", "commissioned"), "");
}

TEST_F(Controller, FindsATimeStampIncompleteThatAFileBrings) {
    EXPECT_TRUE(loadText(R"({"children": [{"PumpStation.Controller": {"name": "PLC",
        "address": "a", "port": 1, "pollInterval": "1s", "reconnectDelay": "1s",
        "commissioned": "2024-05-06"}}]})"));
    EXPECT_EQ(state("PLC", "commissioned"),
              "The time stamp must read like “2024-05-06 07:08:09Z”.");
    EXPECT_EQ(errorCount(), 1U);
}

TEST_F(Controller, CompletesAUuidWhileItIsTyped) {
    EXPECT_EQ(set("PLC", "assetId", "2d1f6c8a-7b40-4f0e-9a51"), "");
    EXPECT_EQ(text("PLC", "assetId"), "2d1f6c8a-7b40-4f0e-9a51-000000000000");
}

TEST_F(Controller, KeepsSettingsOfAnyShape) {
    constexpr std::string_view kSettings =
        R"({"unitId":17,"registers":[40001,40003],"nested":{"trace":null,"factor":1.5}})";
    EXPECT_EQ(set("PLC", "settings", kSettings), "");
    EXPECT_EQ(text("PLC", "settings"), kSettings);
    const std::string written = saved();
    EXPECT_TRUE(loadText(written));
    EXPECT_EQ(text("PLC", "settings"), kSettings);
    EXPECT_EQ(saved(), written);
}

TEST_F(Controller, RefusesSettingsWithAReservedName) {
    for (const char* name : {"name", "UUID", "ACL", "children"}) {
        EXPECT_EQ(set("PLC", "settings", "{\"" + std::string(name) + "\": 1}"),
                  "reserved member name \"" + std::string(name) + "\"");
    }
    EXPECT_EQ(set("PLC", "settings", R"({"nested": {"name": 1}})"), "");
}

TEST_F(Controller, RefusesSettingsThatAreNoObject) {
    EXPECT_THAT(set("PLC", "settings", "[1]"), testing::Not(IsEmpty()));
    EXPECT_THAT(set("PLC", "settings", "{\"unitId\":"), testing::Not(IsEmpty()));
    EXPECT_EQ(text("PLC", "settings"), "");
}

TEST_F(Controller, ForgetsSettingsThatAreEmptied) {
    EXPECT_EQ(set("PLC", "settings", R"({"unitId": 17})"), "");
    EXPECT_EQ(set("PLC", "settings", ""), "");
    EXPECT_THAT(saved(), testing::Not(HasSubstr("settings")));
}

TEST_F(Controller, OffersItsMembers) {
    EXPECT_THAT(attributes("PLC"), ElementsAre("deviceState"));
    EXPECT_THAT(events("PLC"), ElementsAre("connected", "disconnected"));
    EXPECT_THAT(tasks("PLC"), ElementsAre("reconnect"));
}

} // namespace
