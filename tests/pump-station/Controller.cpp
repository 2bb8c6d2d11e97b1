#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class Controller : public PumpStationTest {
protected:
    BenchElement plc = bench.add("PumpStation.Controller", "PLC");
};

TEST_F(Controller, StartsValid) {
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_THAT(plc.settings(),
                ElementsAre("address", "port", "security", "certificate", "pollInterval",
                            "reconnectDelay", "commissioned", "assetId", "settings"));
    EXPECT_THAT(plc.at("address"), HasText("192.168.0.10"));
    EXPECT_THAT(plc.at("port"), HasText("502"));
    EXPECT_THAT(plc.at("security"), HasText("none"));
    EXPECT_THAT(plc.at("pollInterval"), HasText("250ms"));
    EXPECT_THAT(plc.at("reconnectDelay"), HasText("5s"));
    EXPECT_THAT(plc.at("commissioned"), HasText(""));
    EXPECT_THAT(plc.at("settings"), HasText(""));
}

TEST_F(Controller, GetsAnAssetIdOfItsOwn) {
    const BenchElement plc2 = bench.add("PumpStation.Controller", "PLC 2");
    EXPECT_EQ(plc.at("assetId").text().size(), 36U);
    EXPECT_NE(plc.at("assetId").text(), plc2.at("assetId").text());
}

TEST_F(Controller, NeedsAnAddress) {
    plc.at("address").set("");
    EXPECT_THAT(plc.at("address"), HasError("Enter the address of the controller."));
    plc.at("address").set("plc.example");
    EXPECT_THAT(plc.at("address"), IsOk());
}

TEST_F(Controller, NeedsAPortThatExists) {
    for (const char* port : {"0", "65536", "-1", "9223372036854775807"}) {
        plc.at("port").set(port);
        EXPECT_THAT(plc.at("port"), HasError("The port must lie between 1 and 65535.")) << port;
    }
    for (const char* port : {"1", "65535"}) {
        plc.at("port").set(port);
        EXPECT_THAT(plc.at("port"), IsOk()) << port;
    }
}

TEST_F(Controller, RefusesAPortThatIsNoWholeNumber) {
    EXPECT_THAT(plc.at("port"), Refuses("5.5", "“5.5” is not a whole number."));
    EXPECT_THAT(plc.at("port"), Refuses("", "“” is not a whole number."));
    EXPECT_THAT(plc.at("port"), HasText("502"));
}

TEST_F(Controller, ShowsTheCertificateOnlyWhenThereIsOne) {
    EXPECT_THAT(plc.at("certificate"), IsHidden());
    plc.at("security").set("certificate");
    EXPECT_THAT(plc.at("certificate"), IsVisible());
    EXPECT_THAT(plc.at("certificate"), HasError("Enter the file name of the certificate."));
    EXPECT_THAT(bench, HasErrors(1));
    plc.at("security").set("none");
    EXPECT_THAT(plc.at("certificate"), IsHidden());
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Controller, TellsWhoWatchesTheCertificateThatItIsHidden) {
    plc.at("security").set("certificate");
    plc.at("security").set("none");
    EXPECT_THAT(bench, Announced(R"(
        value       PLC.security: none
        state       PLC.certificate: ok
        visibility  PLC.certificate: hidden
        errors      PLC: 0
        errors      (root): 0)"));
}

TEST_F(Controller, SavesTheCertificateOnlyWhenThereIsOne) {
    plc.at("security").set("certificate");
    plc.at("certificate").set("plc.pem");
    EXPECT_THAT(bench.saved(), HasSubstr("\"certificate\": \"plc.pem\""));
    plc.at("security").set("none");
    EXPECT_THAT(bench.saved(), Not(HasSubstr("plc.pem")));
}

TEST_F(Controller, RefusesASecurityThatIsNoChoice) {
    EXPECT_THAT(plc.at("security"), Refuses("password", "“password” is not one of the choices."));
    EXPECT_THAT(plc.at("security").choices(), ElementsAre("none", "certificate"));
}

TEST_F(Controller, NeedsAPollInterval) {
    plc.at("pollInterval").set("0");
    EXPECT_THAT(plc.at("pollInterval"), HasError("The poll interval must be longer than 0."));
}

TEST_F(Controller, WaitsAtLeastAPollIntervalBeforeItReconnects) {
    plc.at("pollInterval").set("6s");
    EXPECT_THAT(plc.at("reconnectDelay"),
                HasError("The reconnect delay must not be shorter than the poll interval."));
    plc.at("pollInterval").set("5000ms");
    EXPECT_THAT(plc.at("reconnectDelay"), IsOk());
    EXPECT_THAT(plc.at("reconnectDelay"), Announced("state       PLC.reconnectDelay: ok"));
}

TEST_F(Controller, RefusesWhatIsNoDuration) {
    EXPECT_THAT(plc.at("pollInterval"),
                Refuses("5min", "“5min” is not a duration; write for example “250ms” or “1.5h”."));
    EXPECT_THAT(plc.at("pollInterval"), HasText("250ms"));
}

TEST_F(Controller, CompletesATimeStampWhileItIsTyped) {
    plc.at("commissioned").set("2024-05-06 07");
    EXPECT_THAT(plc.at("commissioned"), HasText("2024-05-06 07:00:00+00:00"));
    EXPECT_THAT(plc.at("commissioned"), IsOk());
    plc.at("commissioned").set("");
    EXPECT_THAT(plc.at("commissioned"), HasText(""));
    EXPECT_THAT(plc.at("commissioned"), IsOk());
}

TEST_F(Controller, FindsATimeStampIncompleteThatAFileBrings) {
    bench.load(R"({"children": [{"PumpStation.Controller": {"name": "PLC",
        "address": "a", "port": 1, "pollInterval": "1s", "reconnectDelay": "1s",
        "commissioned": "2024-05-06"}}]})");
    EXPECT_THAT(bench.at("PLC.commissioned"),
                HasError("The time stamp must read like “2024-05-06 07:08:09Z”."));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(Controller, CompletesAUuidWhileItIsTyped) {
    plc.at("assetId").set("2d1f6c8a-7b40-4f0e-9a51");
    EXPECT_THAT(plc.at("assetId"), HasText("2d1f6c8a-7b40-4f0e-9a51-000000000000"));
}

TEST_F(Controller, KeepsSettingsOfAnyShape) {
    constexpr std::string_view kSettings =
        R"({"unitId":17,"registers":[40001,40003],"nested":{"trace":null,"factor":1.5}})";
    plc.at("settings").set(kSettings);
    EXPECT_THAT(plc.at("settings"), HasText(kSettings));
    const std::string written = bench.saved();
    bench.load(written);
    EXPECT_THAT(plc.at("settings"), HasText(kSettings));
    EXPECT_EQ(bench.saved(), written);
}

TEST_F(Controller, RefusesSettingsWithAReservedName) {
    for (const char* name : {"name", "UUID", "ACL", "children"}) {
        EXPECT_THAT(plc.at("settings"),
                    Refuses("{\"" + std::string(name) + "\": 1}",
                            "reserved member name \"" + std::string(name) + "\""));
    }
    plc.at("settings").set(R"({"nested": {"name": 1}})");
}

TEST_F(Controller, RefusesSettingsThatAreNoObject) {
    EXPECT_THAT(plc.at("settings"), Refuses("[1]", Not(IsEmpty())));
    EXPECT_THAT(plc.at("settings"), Refuses("{\"unitId\":", Not(IsEmpty())));
    EXPECT_THAT(plc.at("settings"), HasText(""));
}

TEST_F(Controller, ForgetsSettingsThatAreEmptied) {
    plc.at("settings").set(R"({"unitId": 17})");
    plc.at("settings").set("");
    EXPECT_THAT(bench.saved(), Not(HasSubstr("settings")));
}

TEST_F(Controller, OffersItsMembers) {
    EXPECT_THAT(plc.attributes(), ElementsAre("deviceState"));
    EXPECT_THAT(plc.events(), ElementsAre("connected", "disconnected"));
    EXPECT_THAT(plc.tasks(), ElementsAre("reconnect"));
}

} // namespace
