#include "support/FacadeFailure.h"
#include "usbhost/UsbHostFixture.h"
#include "usbhost/UsbHostSettingsImplementor.h"

namespace quorvel::test
{

namespace
{

using Facade = AspUsbHostSettingsFacade;
using Error = AspWebAppErrorCodes;
using Operation = FailingOperation<Facade>;

using UsbHostFailure = FacadeFailure<Facade>;

/// What fails also if the gateway just doesn't answer readably.
class UsbHostSilence : public FacadeFailure<Facade>
{
};

const Operation write{
    "setUsbHostAdvancedSettings",
    [](Facade& f, Error& e) { return shown(f.setUsbHostAdvancedSettings({}, e)); }, "false"};

const std::vector<Operation> others{
    {"getUsbHostDevices",
     [](Facade& f, Error& e) { return shown(f.getUsbHostDevices(e)).join(QLatin1Char('\n')); },
     noSharing},
    {"getUsbHostAdvancedSettings",
     [](Facade& f, Error& e) { return shown(f.getUsbHostAdvancedSettings(e)); }, noSharing},
    {"getUsbStatus",
     [](Facade& f, Error& e) {
         bool printer = true;
         bool disk = true;
         f.getUsbStatus(printer, disk, e);
         return shown(printer) + QLatin1Char(' ') + shown(disk);
     },
     "false false"},
    {"diskMount", [](Facade& f, Error& e) { return shown(f.diskMount(text("3"), e)); }, "false"},
    {"diskUnmount", [](Facade& f, Error& e) { return shown(f.diskUnmount(text("3"), e)); },
     "false"}};

std::vector<Operation> all()
{
    std::vector<Operation> operations = others;
    operations.push_back(write);
    return operations;
}

} // namespace

TEST_P(UsbHostFailure, GivesTheDefaultWithoutAGateway)
{
    expectDefaultWithoutGateway();
}

TEST_P(UsbHostFailure, GivesTheDefaultOnAGatewayThatIsNotBuilt)
{
    expectDefaultOnGatewayThatIsNotBuilt();
}

TEST_P(UsbHostFailure, GivesTheDefaultOnAGatewayWithoutAUsbHostPort)
{
    cpe->setUsbHostImplementor(boost::shared_ptr<UsbHostSettingsImplementor>());
    expectDefaultWithoutFamily();
}

TEST_P(UsbHostFailure, GivesTheDefaultIfTheRequestFails)
{
    expectDefaultIfTheRequestFails();
}

INSTANTIATE_TEST_SUITE_P(AllOperations, UsbHostFailure, testing::ValuesIn(all()), CaseName());

TEST_P(UsbHostSilence, GivesTheDefaultIfTheReplyIsUnreadable)
{
    expectDefaultIfTheReplyIsUnreadable();
}

TEST_P(UsbHostSilence, GivesTheDefaultIfTheGatewayDoesNotAnswerInTime)
{
    expectDefaultIfTheGatewayDoesNotAnswer(cpe->getUsbHostImplementor());
}

INSTANTIATE_TEST_SUITE_P(AllButTheWrite, UsbHostSilence, testing::ValuesIn(others), CaseName());

} // namespace quorvel::test
