// The eleven documents, and which of them a file is.
#pragma once

#include <tolva/tolva.h>

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tolva::support {

/// One of the documents.
struct DocumentKind {
  std::string_view name;                   ///< a short one, for people and command lines: "policy"
  std::string_view root_element;           ///< "ILPClientConfiguration"
  std::unique_ptr<node::INode> (*make)();  ///< makes a root node that holds nothing
};

namespace internal {

inline std::unique_ptr<node::INode> Own(node::INode* root) {
  return std::unique_ptr<node::INode>(root);
}

}  // namespace internal

/// The document whose root node has the interface `Interface`. Of other types `make` is null.
template <class Interface>
inline constexpr DocumentKind kDocument = {};

template <>
inline constexpr DocumentKind kDocument<ClientConfig::IActiveDirectory> = {
    "active-directory", "ActiveDirectory",
    [] { return internal::Own(ClientConfig::ActiveDir_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<TolvaInterface::IILPClientConfiguration> = {
    "policy", "ILPClientConfiguration",
    [] { return internal::Own(TolvaInterface::ILPClientConfiguration_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<NGConfInterface::IINGClientConfiguration> = {
    "ng", "INGClientConfiguration",
    [] { return internal::Own(NGConfInterface::INGClientConfiguration_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<GlobalConfInterface::IIGLOBALClientConfiguration> = {
    "global", "IGLOBALClientConfiguration", [] {
      return internal::Own(GlobalConfInterface::IGLOBALClientConfiguration_CreateNewInstance());
    }};

template <>
inline constexpr DocumentKind kDocument<ProxyClientConfig::IIPXYClientConfiguration> = {
    "proxy", "IPXYClientConfiguration",
    [] { return internal::Own(ProxyClientConfig::IPXYClientConfiguration_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<CIConfInterface::ICIClientConfiguration> = {
    "ci", "ICIClientConfiguration",
    [] { return internal::Own(CIConfInterface::ICIClientConfiguration_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<RFConfInterface::IRFClientConfiguration> = {
    "remote-filtering", "IRFClientConfiguration",
    [] { return internal::Own(RFConfInterface::IRFClientConfiguration_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<CpsAnalysisDetailsConf::IanalysisDetails> = {
    "analysis-details", "analysisDetails",
    [] { return internal::Own(CpsAnalysisDetailsConf::analysisDetails_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<MessageConf::IEndPointMessage> = {
    "message-catalogue", "EndPointMessage",
    [] { return internal::Own(MessageConf::EndPointMessage_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<IpbtConf::IInstallConfig> = {
    "install-config", "InstallConfig",
    [] { return internal::Own(IpbtConf::InstallConfig_CreateNewInstance()); }};

template <>
inline constexpr DocumentKind kDocument<PatchFileHistory::IEndpointFilePatches> = {
    "patch-history", "EndpointFilePatches",
    [] { return internal::Own(PatchFileHistory::EndpointFilePatches_CreateNewInstance()); }};

/// All documents.
inline constexpr std::array kDocuments = {
    &kDocument<ClientConfig::IActiveDirectory>,
    &kDocument<TolvaInterface::IILPClientConfiguration>,
    &kDocument<NGConfInterface::IINGClientConfiguration>,
    &kDocument<GlobalConfInterface::IIGLOBALClientConfiguration>,
    &kDocument<ProxyClientConfig::IIPXYClientConfiguration>,
    &kDocument<CIConfInterface::ICIClientConfiguration>,
    &kDocument<RFConfInterface::IRFClientConfiguration>,
    &kDocument<CpsAnalysisDetailsConf::IanalysisDetails>,
    &kDocument<MessageConf::IEndPointMessage>,
    &kDocument<IpbtConf::IInstallConfig>,
    &kDocument<PatchFileHistory::IEndpointFilePatches>,
};

/// The document with that root element; null when there is none, for an empty name too.
const DocumentKind* FindDocument(std::string_view root_element) noexcept;

/// The local name of a file's root element, in UTF-8:
///   const DocumentKind* kind = FindDocument(RootName("some.xml"));
///
/// Empty when the file has none that could be read: it cannot be opened, is no regular file, starts
/// with something malformed, declares an encoding that the library's own XML layer does not read,
/// or has a document type declaration, which the library refuses; or the name is longer than 1,000
/// bytes. Nothing after the name is looked at, so the document may be malformed there, and the
/// name's prefix undeclared. Reads no more than it needs, in constant memory.
std::string RootName(const std::filesystem::path& file);

/// The same for a document in a wide string, as `IXMLLiteManager::OpenFromString` takes it: what
/// encoding it declares does not matter.
std::string RootNameFromString(const std::wstring& document);

}  // namespace tolva::support
