#include "policy/discovery.h"

namespace TolvaInterface {
namespace {

constexpr const wchar_t* kActions[] = {L"ANALYZE"};
constexpr const wchar_t* kScanModes[] = {L"FULL", L"DIFFERENTIAL", L"ALTERNATIVE"};

}  // namespace

constinit const Attribute CFileFilter::kAttributes[] = {
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
constinit const Schema CFileFilter::kSchema = {
    .element = L"FileFilter",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CDiscoveryAction::kAttributes[] = {
    Attr<&CDiscoveryAction::action_>(L"Action", {kActions}),
};
constinit const Schema CDiscoveryAction::kSchema = {
    .element = L"DiscoveryAction",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CDiscoverySettings::kAttributes[] = {
    Attr<&CDiscoverySettings::fullScanInterval_>(L"FullScanInterval"),
    Attr<&CDiscoverySettings::pauseOnNotIdle_>(L"PauseOnNotIdle"),
    Attr<&CDiscoverySettings::idleTimeout_>(L"IdleTimeout"),
    Attr<&CDiscoverySettings::pauseOnBattery_>(L"PauseOnBattery"),
    Attr<&CDiscoverySettings::scanMode_>(L"ScanMode", {kScanModes}),
    Attr<&CDiscoverySettings::preserveFileAccessTime_>(L"PreserveFileAccessTime"),
    Attr<&CDiscoverySettings::fullScanOnFingerprintUpdate_>(L"FullScanOnFingerprintUpdate"),
};
constinit const Schema CDiscoverySettings::kSchema = {
    .element = L"DiscoverySettings",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CDiscoveryJob::kAttributes[] = {
    Attr<&CDiscoveryJob::id_>(L"Id"),
    Attr<&CDiscoveryJob::sid_>(L"Sid"),
    Attr<&CDiscoveryJob::cid_>(L"Cid"),
    Attr<&CDiscoveryJob::taskid_>(L"Taskid"),
};
constinit const Child CDiscoveryJob::kChildren[] = {
    Elem<&CDiscoveryJob::schedule_>(L"Schedule"),
    Elem<&CDiscoveryJob::fileFilter_>(L"FileFilter"),
    Elem<&CDiscoveryJob::discoveryAction_>(L"DiscoveryAction"),
    Elem<&CDiscoveryJob::discoverySettings_>(L"DiscoverySettings"),
};
constinit const Schema CDiscoveryJob::kSchema = {
    .element = L"DiscoveryJob",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Child CDiscoveryJobs::kChildren[] = {
    Elem<&CDiscoveryJobs::discoveryJobs_>(L"DiscoveryJob"),
};
constinit const Schema CDiscoveryJobs::kSchema = {
    .element = L"DiscoveryJobs",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CDiscovery::kChildren[] = {
    Elem<&CDiscovery::discoveryJobs_>(L"DiscoveryJobs"),
};
constinit const Schema CDiscovery::kSchema = {
    .element = L"Discovery",
    .dialect = kDialect,
    .children = kChildren,
};

}  // namespace TolvaInterface
