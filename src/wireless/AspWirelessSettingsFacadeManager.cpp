#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include <quorvel/AspWirelessSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacadeNG.h>

#include "protocol/Vocabulary.h"

#include <algorithm>
#if defined(QUORVEL_LEAK_CHECKER)
#include <sanitizer/lsan_interface.h>
#endif

namespace quorvel
{

namespace
{

using Radio = AspWirelessSettingsFacadeImplementor;

/// Facades live as long as the process: copies of a manager share them, and none of them knows
/// when the last is gone. So nobody deletes them, and the leak checker is told that this is meant.
Radio* keptForEver(Radio* radio)
{
#if defined(QUORVEL_LEAK_CHECKER)
    __lsan_ignore_object(dynamic_cast<void*>(radio));
#endif
    return radio;
}

/// The facade of a radio by its name; null for a name of neither generation.
Radio* makeRadio(const QString& name, const boost::shared_ptr<Cpe>& cpe)
{
    if (name.contains(wire::wirelessCore))
        return keptForEver(new AspWirelessSettingsFacade(cpe));
    // A further newer radio, as "wireless-1", isn't served.
    if (name.contains(QLatin1String("wireless-0")))
        return keptForEver(new AspWirelessSettingsFacadeNG(cpe));
    return nullptr;
}

} // namespace

AspWirelessSettingsFacadeManager::AspWirelessSettingsFacadeManager(boost::shared_ptr<Cpe> cpe,
                                                                   QStringList managers)
    : AspFacade(cpe), managers(managers)
{
    Initialize();
}

AspWirelessSettingsFacadeManager::AspWirelessSettingsFacadeManager(
    const AspWirelessSettingsFacadeManager& other) = default;

AspWirelessSettingsFacadeManager& AspWirelessSettingsFacadeManager::operator=(
    const AspWirelessSettingsFacadeManager& other) = default;

AspWirelessSettingsFacadeManager::~AspWirelessSettingsFacadeManager() = default;

void AspWirelessSettingsFacadeManager::Initialize()
{
    getWirelessManagerList();
}

AspWirelessSettingsFacadeManager::Facades AspWirelessSettingsFacadeManager::getWirelessManagerList()
{
    for (const QString& name : qAsConst(managers)) {
        Radio* radio = makeRadio(name, cpe);
        if (!radio)
            continue;
        radio->setManager(name);
        // A radio that doesn't tell what it can do is served all the same.
        AspWebAppErrorCodes unreported;
        radio->getWirelessCapabilities(unreported);
        facades.append(radio);
    }
    return facades;
}

AspWirelessSettingsFacadeManager::Facades AspWirelessSettingsFacadeManager::getManagerList() const
{
    return facades;
}

Radio* AspWirelessSettingsFacadeManager::getManagerList(int) const
{
    // The radio is the one that was chosen, whichever the caller of an operation names.
    return facades.value(managerId);
}

int AspWirelessSettingsFacadeManager::getManagerCount()
{
    return facades.size();
}

void AspWirelessSettingsFacadeManager::setManagerId(int id)
{
    managerId = id;
}

void AspWirelessSettingsFacadeManager::setManagerList(const QStringList& newManagers)
{
    managers = newManagers;
}

template <typename Result, typename Operation>
Result AspWirelessSettingsFacadeManager::askChosen(int index, AspWebAppErrorCodes& error,
                                                   Result otherwise, Operation operation)
{
    error = validateCpe();
    if (error != AspWebAppNoError || index < 0)
        return otherwise;
    Radio* radio = getManagerList(index);
    return radio ? operation(*radio) : otherwise;
}

AspWirelessStatus AspWirelessSettingsFacadeManager::checkWirelessStatus(int index,
                                                                        AspWebAppErrorCodes& error)
{
    return askChosen(index, error, AspWirelessStatusUnknown,
                     [&](Radio& radio) { return radio.checkWirelessStatus(error); });
}

AspWpsEnabledStatus AspWirelessSettingsFacadeManager::checkWpsEnabledStatus(
    int index, AspWebAppErrorCodes& error)
{
    return askChosen(index, error, AspWpsStatusUnknown,
                     [&](Radio& radio) { return radio.checkWpsEnabledStatus(error); });
}

AspWirelessSettings AspWirelessSettingsFacadeManager::getWirelessSettings(
    int index, AspWebAppErrorCodes& error)
{
    return askChosen(index, error, AspWirelessSettings(),
                     [&](Radio& radio) { return radio.getWirelessSettings(error); });
}

QStringList AspWirelessSettingsFacadeManager::getSupportSecurityModes(int band, int index)
{
    // The gateway isn't judged here: what asks it judges by itself.
    Radio* radio = index < 0 ? nullptr : getManagerList(index);
    return radio ? radio->getSupportSecurityModes(band) : QStringList();
}

bool AspWirelessSettingsFacadeManager::setWirelessSettings(const AspWirelessStatus& status,
                                                           const AspWirelessSettings& settings,
                                                           AspWebAppErrorCodes& error)
{
    // No index guards this one; the record's own is the host's note.
    return askChosen(0, error, false, [&](Radio& radio) {
        return radio.setWirelessSettings(status, settings, error);
    });
}

bool AspWirelessSettingsFacadeManager::setWirelessSettings(
    const QList<AspWirelessSettings>& settings, AspWebAppErrorCodes& error)
{
    error = validateCpe();
    if (error != AspWebAppNoError || facades.isEmpty() || settings.size() < facades.size())
        return false;
    QString query;
    for (int i = 0; i < facades.size(); ++i)
        query +=
            facades.at(i)->getWirelessSettingsQuery(settings.at(i).status, settings.at(i), error);
    // One radio speaks for all, and what came of it stands in the error alone.
    facades.first()->setWirelessQuery(query, error);
    return true;
}

template <typename List>
List AspWirelessSettingsFacadeManager::askAll(AspWebAppErrorCodes& error,
                                              List (Radio::*operation)(AspWebAppErrorCodes&))
{
    List joined;
    error = validateCpe();
    if (error != AspWebAppNoError)
        return joined;
    const Facades radios = getManagerList();
    for (Radio* radio : radios)
        joined += (radio->*operation)(error);
    return joined;
}

QStringList AspWirelessSettingsFacadeManager::getWirelessClientMacList(AspWebAppErrorCodes& error)
{
    return askAll(error, &Radio::getWirelessClientMacList);
}

QList<AspWirelessMeshInst> AspWirelessSettingsFacadeManager::getWirelessMeshInstances(
    AspWebAppErrorCodes& error)
{
    return askAll(error, &Radio::getWirelessMeshInstances);
}

bool AspWirelessSettingsFacadeManager::isWirelessSecurityEnabled(AspWebAppErrorCodes& error)
{
    error = validateCpe();
    if (error != AspWebAppNoError)
        return false;
    const Facades radios = getManagerList();
    return std::any_of(radios.begin(), radios.end(),
                       [&](Radio* radio) { return radio->isWirelessSecurityEnabled(error); });
}

bool AspWirelessSettingsFacadeManager::isSecurityProxyEnabled(AspWebAppErrorCodes& error)
{
    // The answer is no until a radio says yes, and a radio is only asked once it is yes.
    error = validateCpe();
    return false;
}

AspWpsRole AspWirelessSettingsFacadeManager::getWpsRole(AspWebAppErrorCodes& error)
{
    error = validateCpe();
    return AspWpsRoleUnknown;
}

} // namespace quorvel
