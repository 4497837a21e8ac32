#version 440

// A ring or a part of one: a track, and an arc with round ends whose colours go from deep over
// primary to soft along it, in a glow. Angles are shares of the circle, from the top to the right.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 deep;
    vec4 primary;
    vec4 soft;
    float extent;        // of the item, in points
    float diameter;      // of the ring's outer edge, in points
    float lineWidth;
    float start;
    float span;
    float fill;          // share of the span
    float gradientSpan;
    float glow;
    float track;         // opacity of white
    float pixel;         // size of a device pixel in points
};

const float turn = 6.28318530718;

vec2 onCircle(float angle, float r) {
    return r * vec2(sin(angle * turn), -cos(angle * turn));
}

// From the middle line of an arc, whose ends are round.
float distanceToArc(vec2 p, float angle, float share, float r) {
    if (share >= 0.9995) return abs(length(p) - r);
    float middle = start + share * 0.5;
    float away = abs(fract(angle - middle + 0.5) - 0.5);
    if (away <= share * 0.5) return abs(length(p) - r);
    return min(length(p - onCircle(start, r)), length(p - onCircle(start + share, r)));
}

vec3 colorAt(float share) {
    return share < 0.5 ? mix(deep.rgb, primary.rgb, share * 2.0)
                       : mix(primary.rgb, soft.rgb, min(share * 2.0 - 1.0, 1.0));
}

void main() {
    vec2 p = (qt_TexCoord0 - 0.5) * extent;
    float r = (diameter - lineWidth) * 0.5;
    float halfWidth = lineWidth * 0.5;
    float angle = fract(atan(p.x, -p.y) / turn + 1.0);

    vec4 color = vec4(track) * clamp((halfWidth - distanceToArc(p, angle, span, r)) / pixel + 0.5, 0.0, 1.0);

    float filled = clamp(fill, 0.0, 1.0) * span;
    if (filled > 0.0) {
        float d = distanceToArc(p, angle, filled, r);
        float colors = max(gradientSpan, 0.06);  // the first dot is of one colour
        float along = fract(angle - start + 1.0);
        // The round end at the start lies before it, and has its colour.
        bool isBeforeStart = filled < 0.9995 && along > 0.5 + 0.5 * filled;
        vec3 rgb = colorAt(isBeforeStart ? 0.0 : along / colors);
        // The round end lies over the start where a full ring closes.
        float ahead = fract(along - filled + 1.0);
        float fromEnd = length(p - onCircle(start + filled, r));
        float cap = ahead < 0.5 ? clamp((halfWidth - fromEnd) / pixel + 0.5, 0.0, 1.0) : 0.0;
        rgb *= 1.0 - 0.35 * (ahead < 0.5 ? exp(-max(fromEnd - halfWidth, 0.0) * 4.0 / lineWidth) : 0.0);
        rgb = mix(rgb, colorAt(filled / colors), cap);

        float outside = max(d - halfWidth, 0.0);
        float reach = (extent - diameter) * 0.5;
        float light = glow * exp(-outside * outside / (reach * reach * 0.18)) * clamp((reach - outside) / reach, 0.0, 1.0);
        vec4 halo = vec4(primary.rgb * light, light * 0.55);
        color = halo + color * (1.0 - halo.a);

        float tube = 0.16 * (1.0 - smoothstep(0.0, halfWidth, abs(length(p) - r + halfWidth * 0.35)));
        float body = clamp((halfWidth - d) / pixel + 0.5, 0.0, 1.0);
        color = mix(color, vec4(rgb + tube, 1.0), body);
    }
    fragColor = color * qt_Opacity;
}
