#include "policy/discovery.h"

namespace TolvaInterface {
namespace {

constexpr Name kActions[] = {L"ANALYZE"};
constexpr Name kScanModes[] = {L"FULL", L"DIFFERENTIAL", L"ALTERNATIVE"};

}  // namespace

constexpr Attribute kFileFilterAttributes[] = {
    Attr<&CFileFilter::include_>(L"Include"),
    Attr<&CFileFilter::exclude_>(L"Exclude"),
    Attr<&CFileFilter::age_>(L"Age"),
    Attr<&CFileFilter::modifiedBefore_>(L"ModifiedBefore"),
    Attr<&CFileFilter::minDate_>(L"MinDate"),
    Attr<&CFileFilter::maxDate_>(L"MaxDate"),
    Attr<&CFileFilter::minSize_>(L"MinSize"),
    Attr<&CFileFilter::maxSize_>(L"MaxSize"),
    Attr<&CFileFilter::driveType_>(L"DriveType"),
    Attr<&CFileFilter::recursive_>(L"Recursive"),
};
constinit const Schema CFileFilter::kSchema = Checked({
    .element = L"FileFilter",
    .dialect = kDialect,
    .attributes = kFileFilterAttributes,
});

constexpr Attribute kDiscoveryActionAttributes[] = {
    Attr<&CDiscoveryAction::action_>(L"Action", {kActions}).KeepsValue(),
};
constinit const Schema CDiscoveryAction::kSchema = Checked({
    .element = L"DiscoveryAction",
    .dialect = kDialect,
    .attributes = kDiscoveryActionAttributes,
});

constexpr Attribute kDiscoverySettingsAttributes[] = {
    Attr<&CDiscoverySettings::fullScanInterval_>(L"FullScanInterval"),
    Attr<&CDiscoverySettings::pauseOnNotIdle_>(L"PauseOnNotIdle"),
    Attr<&CDiscoverySettings::idleTimeout_>(L"IdleTimeout"),
    Attr<&CDiscoverySettings::pauseOnBattery_>(L"PauseOnBattery"),
    Attr<&CDiscoverySettings::scanMode_>(L"ScanMode", {kScanModes}),
    Attr<&CDiscoverySettings::preserveFileAccessTime_>(L"PreserveFileAccessTime"),
    Attr<&CDiscoverySettings::fullScanOnFingerprintUpdate_>(L"FullScanOnFingerprintUpdate"),
};
constinit const Schema CDiscoverySettings::kSchema = Checked({
    .element = L"DiscoverySettings",
    .dialect = kDialect,
    .attributes = kDiscoverySettingsAttributes,
});

constexpr Attribute kDiscoveryJobAttributes[] = {
    Attr<&CDiscoveryJob::id_>(L"Id").NamesItem(),
    Attr<&CDiscoveryJob::sid_>(L"Sid"),
    Attr<&CDiscoveryJob::cid_>(L"Cid"),
    Attr<&CDiscoveryJob::taskid_>(L"Taskid"),
};
constexpr Child kDiscoveryJobChildren[] = {
    Elem<&CDiscoveryJob::schedule_>(L"Schedule"),
    Elem<&CDiscoveryJob::fileFilter_>(L"FileFilter"),
    Elem<&CDiscoveryJob::discoveryAction_>(L"DiscoveryAction"),
    Elem<&CDiscoveryJob::discoverySettings_>(L"DiscoverySettings"),
};
constinit const Schema CDiscoveryJob::kSchema = Checked({
    .element = L"DiscoveryJob",
    .dialect = kDialect,
    .attributes = kDiscoveryJobAttributes,
    .children = kDiscoveryJobChildren,
});

constexpr Child kDiscoveryJobsChildren[] = {
    Elem<&CDiscoveryJobs::discoveryJobs_>(L"DiscoveryJob"),
};
constinit const Schema CDiscoveryJobs::kSchema = Checked({
    .element = L"DiscoveryJobs",
    .dialect = kDialect,
    .children = kDiscoveryJobsChildren,
});

constexpr Child kDiscoveryChildren[] = {
    Elem<&CDiscovery::discoveryJobs_>(L"DiscoveryJobs"),
};
constinit const Schema CDiscovery::kSchema = Checked({
    .element = L"Discovery",
    .dialect = kDialect,
    .children = kDiscoveryChildren,
});

}  // namespace TolvaInterface
