# Changes that break hosts, made on purpose in a copy of the sources, are told beside the baseline.
include(${CMAKE_CURRENT_LIST_DIR}/abi.cmake)

# Everything public, and one implementation, as no other is needed.
set(tree ${WORK_DIR}/tree)
file(COPY ${SOURCE_DIR}/include DESTINATION ${tree})
file(COPY ${SOURCE_DIR}/platform/include DESTINATION ${tree}/platform)
file(COPY ${SOURCE_DIR}/src DESTINATION ${tree}
    FILES_MATCHING PATTERN *.h PATTERN *.map PATTERN AspUsbHostSettingsFacade.cpp)

function(plant file before after)
    file(READ ${tree}/${file} text)
    string(REPLACE "${before}" "${after}" changed "${text}")
    if(changed STREQUAL text)
        message(FATAL_ERROR "${file} doesn't say: ${before}")
    endif()
    file(WRITE ${tree}/${file} "${changed}")
endfunction()

# A field in the middle of a record that only lists hold.
plant(include/quorvel/AspDhcpsClient.h "    QString hostname;" "    QString planted;\n    QString hostname;")
# Another type of the same size.
plant(include/quorvel/AspWirelessSettings.h "QString freq;" "QByteArray freq;")
plant(include/quorvel/AspWirelessStatus.h "AspWirelessDisabled = 1" "AspWirelessDisabled = 8")
# What breaks nobody is told, too: it belongs into the baseline.
plant(include/quorvel/AspWpsRole.h "AspWpsRoleUnknown = 2" "AspWpsPlanted = 3,\n    AspWpsRoleUnknown = 2")
# Virtual functions in another order.
plant(include/quorvel/AspWirelessSettingsFacadeImplementor.h
    "virtual QString getManager() = 0;\n" "")
plant(include/quorvel/AspWirelessSettingsFacadeImplementor.h
    "    virtual AspWpsRole getWpsRole("
    "    virtual QString getManager() = 0;\n    virtual AspWpsRole getWpsRole(")
plant(include/quorvel/AspUsbHostSettingsFacade.h
    ": public AspFacade" ": public AspFacade, public AspUsbHostInstList")
# What no name of a symbol tells.
plant(include/quorvel/AspUsbHostSettingsFacade.h "bool diskMount(" "int diskMount(")
plant(src/usbhost/AspUsbHostSettingsFacade.cpp
    "bool AspUsbHostSettingsFacade::diskMount(" "int AspUsbHostSettingsFacade::diskMount(")

describe_abi(${tree} ${WORK_DIR}/planted.abi)
compare_with_baseline(${WORK_DIR}/planted.abi --changed-fns --changed-vars)
if(abi_status EQUAL 0)
    message(FATAL_ERROR "abidiff doesn't mind:\n${abi_report}")
endif()
foreach(change
        "'QString planted', at offset 128 "
        "'QString hostname' offset changed from 128 to 192 "
        "type of 'QString freq' changed:\n *type name changed from 'QString' to 'QByteArray'"
        "'quorvel::AspWirelessStatus::AspWirelessDisabled' from value '1' to '8'"
        "'quorvel::AspWpsRole::AspWpsPlanted' value '3'"
        "AspWirelessSettingsFacadeImplementor::getManager\\(\\) changed from 16 to 6"
        "quorvel::AspUsbHostSettingsFacade':\n *type size changed from 256 to 384 [^\n]*\n *1 base class insertion:\n *struct quorvel::AspUsbHostInstList"
        "'method bool quorvel::AspUsbHostSettingsFacade::diskMount[^\n]*\n *return type changed:\n *type name changed from 'bool' to 'int'")
    if(NOT abi_report MATCHES "${change}")
        message(FATAL_ERROR "abidiff doesn't tell of: ${change}\n${abi_report}")
    endif()
endforeach()
