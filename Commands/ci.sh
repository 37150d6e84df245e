# SPDX-License-Identifier: MIT
# Group: all
# Help: | all gates, as the integration server runs them
exec bash .ci/run
