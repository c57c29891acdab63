// The documents that the benchmarks read: made up, but shaped like an agent's.
#pragma once

#include <cstddef>
#include <string>

namespace tolva::bench {

/// Short attributes, two-blank indentation, little text: a policy of about `size` bytes.
inline std::string MakeAttributeDense(std::size_t size) {
  std::string xml =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<Policy SchemaVersion=\"3\" SN=\"20240611-17\" Name=\"Head office\">\n";
  for (unsigned i = 0; xml.size() < size; ++i) {
    const std::string n = std::to_string(i);
    xml += "  <Location Name=\"Branch " + n + "\" Desc=\"Laptops &amp; desktops\">\n";
    xml += "    <Protection CloseActionOnAnalysisFailed=\"1\" DisableBlockingCapabilities=\"0\">\n";
    for (unsigned rule = 0; rule < 4; ++rule) {
      xml += "      <DeviceRule Action=\"BLOCK\" DeviceName=\"Stick " + n + "\" SerialNumber=\"0" +
             std::to_string(i * 7919 + rule) + "\" VendorID=\"090c\"/>\n";
    }
    xml += "      <WebAccessRule Action=\"ALLOW\" DestinationHost=\"https://intranet-" + n +
           ".example/upload\"/>\n";
    xml += "      <Channel Sid=\"" + std::to_string(i % 97) + "\" Cid=\"12\">\n";
    xml += "        <Condition AppName=\"writer.exe\" OS=\"10\"/>\n";
    xml += "      </Channel>\n    </Protection>\n  </Location>\n";
  }
  xml += "</Policy>\n";
  return xml;
}

/// Sentences in elements, one attribute each: a message catalogue of about `size` bytes.
inline std::string MakeTextDense(std::size_t size) {
  std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Catalogue Language=\"en\">\n";
  for (unsigned i = 0; xml.size() < size; ++i) {
    xml += "  <Message ID=\"" + std::to_string(i) + "\">\n    <Content>";
    for (unsigned sentence = 0; sentence < 6; ++sentence) {
      xml += "The file that you are about to copy holds data that must not leave this computer. ";
      if (sentence % 3 == 2) xml += "Ask your administrator &amp; try again. ";
    }
    xml +=
        "</Content>\n    <Description>Shown when a copy is blocked.</Description>\n  </Message>\n";
  }
  xml += "</Catalogue>\n";
  return xml;
}

}  // namespace tolva::bench
