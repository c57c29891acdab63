#include "installconf/install_config.h"

namespace IpbtConf {

constinit const Attribute CFeature::kAttributes[] = {
    Attr<&CFeature::ilpEnable_>(L"ILPEnable"),
    Attr<&CFeature::discoveryEnable_>(L"DiscoveryEnable"),
};
constinit const Schema CFeature::kSchema = {
    .element = L"Feature",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CInstallSetting::kAttributes[] = {
    Attr<&CInstallSetting::installDirectory_>(L"InstallDirectory"),
    Attr<&CInstallSetting::autoReboot_>(L"AutoReboot"),
    Attr<&CInstallSetting::installStartMenu_>(L"InstallStartMenu"),
};
constinit const Schema CInstallSetting::kSchema = {
    .element = L"InstallSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CInstallConfig::kChildren[] = {
    Elem<&CInstallConfig::feature_>(L"Feature"),
    Elem<&CInstallConfig::installSetting_>(L"InstallSetting"),
};
constinit const Schema CInstallConfig::kSchema = {
    .element = L"InstallConfig",
    .dialect = kDialect,
    .children = kChildren,
};

}  // namespace IpbtConf
