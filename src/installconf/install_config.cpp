#include "installconf/install_config.h"

namespace IpbtConf {

constexpr Attribute kFeatureAttributes[] = {
    Attr<&CFeature::ilpEnable_>(L"ILPEnable"),
    Attr<&CFeature::discoveryEnable_>(L"DiscoveryEnable"),
};
constinit const Schema CFeature::kSchema = Checked({
    .element = L"Feature",
    .dialect = kDialect,
    .attributes = kFeatureAttributes,
});

constexpr Attribute kInstallSettingAttributes[] = {
    Attr<&CInstallSetting::installDirectory_>(L"InstallDirectory"),
    Attr<&CInstallSetting::autoReboot_>(L"AutoReboot"),
    Attr<&CInstallSetting::installStartMenu_>(L"InstallStartMenu"),
};
constinit const Schema CInstallSetting::kSchema = Checked({
    .element = L"InstallSetting",
    .dialect = kDialect,
    .attributes = kInstallSettingAttributes,
});

constexpr Child kInstallConfigChildren[] = {
    Elem<&CInstallConfig::feature_>(L"Feature"),
    Elem<&CInstallConfig::installSetting_>(L"InstallSetting"),
};
constinit const Schema CInstallConfig::kSchema = Checked({
    .element = L"InstallConfig",
    .dialect = kDialect,
    .children = kInstallConfigChildren,
});

}  // namespace IpbtConf
