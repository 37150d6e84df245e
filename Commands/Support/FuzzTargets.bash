# SPDX-License-Identifier: MIT
# What is fuzzed; Tests/Fuzz has a source and a corpus for each.
fuzz_targets=(Operations DialogFile String List Inspection Viewer Restore)
