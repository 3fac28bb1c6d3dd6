<#
.SYNOPSIS
Removes tqcim: classes, namespace, COM registration, library path and files.
.DESCRIPTION
Undoes install.ps1, step by step and backwards, the configuration included. Can be run again: what
is gone already is passed over. Files that install.ps1 did not bring are left.
.PARAMETER Folder
Where tqcim is.
#>
[CmdletBinding(SupportsShouldProcess = $true)]
param(
    [string]$Folder = (Join-Path $env:ProgramFiles 'tqcim')
)
. (Join-Path $PSScriptRoot 'common.ps1')

function Remove-Classes {
    if (-not (Test-Namespace)) {
        Write-Step 'the namespace root\cimv2\vorn is not there'
        return
    }
    Write-Step 'removing the classes and the namespace root\cimv2\vorn'
    $definitions = Join-Path $PSScriptRoot 'tqcim-remove.mof'
    Invoke-Program $Mofcomp @("`"$definitions`"")
    if (-not $WhatIfPreference -and (Test-Namespace)) {
        throw 'The namespace root\cimv2\vorn is still there.'
    }
}

function Unregister-Provider {
    $path = Join-Path $Folder $Module
    $registered = Get-RegisteredModule
    if ($registered -ne $path) {
        Write-Step "$path is not registered with COM"
        return
    }
    Write-Step "removing the registration of $path"
    if (Test-Path -LiteralPath $path) {
        Invoke-Program $Regsvr32 @('/u', '/s', "`"$path`"")
    }
    if (Test-Path -LiteralPath $ClsidKey) {
        Remove-Item -LiteralPath $ClsidKey -Recurse
    }
}

function Restore-LibraryPath {
    if ((Get-RegistryText $SharedKey $PathValue) -ne $Folder) {
        Write-Step "$PathValue is not $Folder"
        return
    }
    $saved = Get-RegistryText $SharedKey $SavedValue
    if ($saved) {
        Write-Step "putting the old $PathValue back: $saved"
        Copy-RegistryValue $SharedKey $SavedValue $PathValue
        Remove-ItemProperty -LiteralPath $SharedKey -Name $SavedValue
        return
    }
    Write-Step "removing $PathValue"
    Remove-ItemProperty -LiteralPath $SharedKey -Name $PathValue
    Remove-EmptyKeys
}

# The key, and those above it that nobody else uses: all are the product's own.
function Remove-EmptyKeys {
    $path = $SharedKey
    while ($path -ne 'HKLM:\SOFTWARE') {
        $key = Get-Item -LiteralPath $path
        if ($key.ValueCount -gt 0 -or $key.SubKeyCount -gt 0) {
            return
        }
        Remove-Item -LiteralPath $path
        $path = Split-Path $path
    }
}

function Remove-Files {
    $list = Join-Path $Folder $FileList
    if (-not (Test-Path -LiteralPath $list)) {
        Write-Step "there are no files of tqcim in $Folder"
        return
    }
    Write-Step "removing the files in $Folder"
    if (-not $PSCmdlet.ShouldProcess($Folder, "Remove the files in $FileList")) {
        return
    }
    # The list goes last: until then the script can be run again.
    foreach ($file in @(Get-Content -LiteralPath $list | Where-Object { $_ -ne $FileList }) + $FileList) {
        $target = Join-Path $Folder $file
        if (Test-Path -LiteralPath $target) {
            Remove-Item -LiteralPath $target -Force
        }
    }
    # The longest names first: a folder is empty once those in it are gone.
    $inside = @(Get-ChildItem -LiteralPath $Folder -Recurse -Directory | ForEach-Object { $_.FullName })
    foreach ($path in @($inside | Sort-Object -Property Length -Descending) + $Folder) {
        if (@(Get-ChildItem -LiteralPath $path -Force).Count -eq 0) {
            Remove-Item -LiteralPath $path -Force
        }
    }
    if (Test-Path -LiteralPath $Folder) {
        Write-Step "leaving $Folder, which holds files that install.ps1 did not bring"
    }
}

Assert-Rights
$Folder = Get-FullPath $Folder
# A folder that somebody stands in can't be removed.
Set-Location -LiteralPath $env:SystemRoot
Remove-Classes
Stop-ProviderHost
Unregister-Provider
Restore-LibraryPath
Remove-Files
Write-Step 'done'
