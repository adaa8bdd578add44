// SPDX-License-Identifier: Apache-2.0
// Half a pixel to either side of the edge the colour fades out.
#version 440

layout(location = 0) in vec4 shapeColor;
layout(location = 1) in float shapeEdge;

layout(location = 0) out vec4 fragment;

void main()
{
    fragment = shapeColor * clamp(0.5 - shapeEdge, 0.0, 1.0);
}
